# What is built of a commit bears the commit's date, which SOURCE_DATE_EPOCH tells; else it is of today.
string(TIMESTAMP VENDLINGUA_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP VENDLINGUA_MAIL_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
