# Writes the settings file of a first start into FOLDER, where the program lies, so that the program
# greets people in the language of their system. A settings file that is there stays.
# Usage: cmake -D FOLDER=... -P FirstSettings.cmake
set(settings ${FOLDER}/vendlingua.ini)
if(EXISTS ${settings})
  return()
endif()

set(locale en)
foreach(variable LC_ALL LC_MESSAGES LANG)
  if(NOT "$ENV{${variable}}" STREQUAL "")
    set(locale $ENV{${variable}})
    break()
  endif()
endforeach()

set(languages
  da=dansk de=deutsch en=english es=espanol fr=francais it=italiano nl=nederlands pt=portugues
  sv=svenska)
set(name english)
foreach(language IN LISTS languages)
  string(REPLACE "=" ";" language ${language})
  list(GET language 0 code)
  if(locale MATCHES "^${code}([_.@-]|$)")
    list(GET language 1 name)
  endif()
endforeach()
file(WRITE ${settings} "Lingua=${name}\r\n")
