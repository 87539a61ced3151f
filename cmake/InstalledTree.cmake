# Where things lie below the prefix. The program's folder holds the programs together with all that they
# read, so that it runs wherever it is carried; people start them through the links in bin/.
include(GNUInstallDirs)

if(WIN32)
  # The prefix is the program's folder: there are no links, and programs are looked for by menus.
  set(VENDLINGUA_PROGRAM_FOLDER .)
  set(VENDLINGUA_DOCUMENT_FOLDER documents)
else()
  set(VENDLINGUA_PROGRAM_FOLDER lib/vendlingua)
  set(VENDLINGUA_DOCUMENT_FOLDER ${CMAKE_INSTALL_DATAROOTDIR}/doc/vendlingua)
endif()

# Installs a program into the program's folder, with a link in bin/ that leads there.
function(install_program program)
  install(TARGETS ${program} DESTINATION ${VENDLINGUA_PROGRAM_FOLDER})
  if(WIN32)
    return()
  endif()
  set(installed ${CMAKE_INSTALL_PREFIX}/${VENDLINGUA_PROGRAM_FOLDER}/${program})
  cmake_path(RELATIVE_PATH installed BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR})
  set(link ${CMAKE_BINARY_DIR}/links/${program})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
  file(CREATE_LINK ${installed} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
