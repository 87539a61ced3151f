; What the installer says besides NSIS's own texts, in the languages of the program.
!macro Texts language desktop running newer space write settings
  LangString DesktopLink ${LANG_${language}} "${desktop}"
  LangString StillRunning ${LANG_${language}} "${running}"
  LangString NewerInstalled ${LANG_${language}} "${newer}"
  LangString NoSpace ${LANG_${language}} "${space}"
  LangString CannotWrite ${LANG_${language}} "${write}"
  LangString RemoveSettings ${LANG_${language}} "${settings}"
!macroend

!insertmacro Texts ENGLISH \
  "Link on the desktop" \
  "Vendlingua is running. Close it and try again." \
  "Version $0 is installed, which is newer than ${VERSION}. Replace it by the older one?" \
  "The disk lacks room: ${SIZE} KiB are needed. Nothing was changed." \
  "The files cannot be written into $INSTDIR. What was there is as it was. Choose another folder, or make room." \
  "Remove your settings, too?"

!insertmacro Texts DANISH \
  "Genvej på skrivebordet" \
  "Vendlingua kører. Luk programmet, og prøv igen." \
  "Version $0 er installeret og er nyere end ${VERSION}. Skal den erstattes af den ældre?" \
  "Der er ikke plads nok på disken: der kræves ${SIZE} KiB. Intet er ændret." \
  "Filerne kan ikke skrives i $INSTDIR. Alt er, som det var. Vælg en anden mappe, eller skaf plads." \
  "Skal dine indstillinger også fjernes?"

!insertmacro Texts DUTCH \
  "Snelkoppeling op het bureaublad" \
  "Vendlingua is geopend. Sluit het programma en probeer het opnieuw." \
  "Versie $0 is geïnstalleerd en is nieuwer dan ${VERSION}. Vervangen door de oudere?" \
  "Er is te weinig schijfruimte: ${SIZE} KiB is nodig. Er is niets gewijzigd." \
  "De bestanden kunnen niet in $INSTDIR worden geschreven. Alles is zoals het was. Kies een andere map of maak ruimte vrij." \
  "Ook uw instellingen verwijderen?"

!insertmacro Texts FRENCH \
  "Raccourci sur le bureau" \
  "Vendlingua est ouvert. Fermez-le et réessayez." \
  "La version $0 est installée ; elle est plus récente que ${VERSION}. La remplacer par l'ancienne ?" \
  "L'espace disque est insuffisant : il faut ${SIZE} Kio. Rien n'a été modifié." \
  "Les fichiers ne peuvent pas être écrits dans $INSTDIR. Rien n'a été modifié. Choisissez un autre dossier ou libérez de la place." \
  "Supprimer aussi vos réglages ?"

!insertmacro Texts GERMAN \
  "Verknüpfung auf dem Desktop" \
  "Vendlingua läuft noch. Schließen Sie es und versuchen Sie es noch einmal." \
  "Version $0 ist installiert und neuer als ${VERSION}. Durch die ältere ersetzen?" \
  "Auf dem Datenträger fehlt Platz: ${SIZE} KiB werden gebraucht. Nichts wurde geändert." \
  "Die Dateien können nicht in $INSTDIR geschrieben werden. Alles ist, wie es war. Wählen Sie einen anderen Ordner oder schaffen Sie Platz." \
  "Auch Ihre Einstellungen entfernen?"

!insertmacro Texts ITALIAN \
  "Collegamento sul desktop" \
  "Vendlingua è aperto. Chiuderlo e riprovare." \
  "È installata la versione $0, più recente della ${VERSION}. Sostituirla con quella meno recente?" \
  "Spazio su disco insufficiente: servono ${SIZE} KiB. Nulla è stato modificato." \
  "Impossibile scrivere i file in $INSTDIR. Tutto è rimasto com'era. Scegliere un'altra cartella o liberare spazio." \
  "Rimuovere anche le impostazioni?"

!insertmacro Texts PORTUGUESE \
  "Atalho no ambiente de trabalho" \
  "O Vendlingua está aberto. Feche-o e tente de novo." \
  "Está instalada a versão $0, mais recente do que a ${VERSION}. Substituí-la pela mais antiga?" \
  "Não há espaço suficiente no disco: são necessários ${SIZE} KiB. Nada foi alterado." \
  "Não é possível escrever os ficheiros em $INSTDIR. Tudo ficou como estava. Escolha outra pasta ou liberte espaço." \
  "Remover também as suas definições?"

!insertmacro Texts SPANISH \
  "Acceso directo en el escritorio" \
  "Vendlingua está abierto. Ciérrelo e inténtelo de nuevo." \
  "Está instalada la versión $0, más reciente que la ${VERSION}. ¿Reemplazarla por la más antigua?" \
  "No hay espacio suficiente en el disco: se necesitan ${SIZE} KiB. No se ha cambiado nada." \
  "No se pueden escribir los archivos en $INSTDIR. Todo está como estaba. Elija otra carpeta o libere espacio." \
  "¿Eliminar también sus ajustes?"

!insertmacro Texts SWEDISH \
  "Genväg på skrivbordet" \
  "Vendlingua är igång. Stäng programmet och försök igen." \
  "Version $0 är installerad och är nyare än ${VERSION}. Ersätta den med den äldre?" \
  "Det finns för lite utrymme på disken: ${SIZE} KiB behövs. Inget har ändrats." \
  "Filerna kan inte skrivas i $INSTDIR. Allt är som det var. Välj en annan mapp eller frigör utrymme." \
  "Ta bort även dina inställningar?"
