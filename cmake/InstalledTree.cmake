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

# Installs a link in `folder` that leads to `target`, both below the prefix, wherever that is.
function(install_link target folder)
  cmake_path(GET target FILENAME name)
  set(path ${CMAKE_INSTALL_PREFIX}/${target})
  cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE place)
  cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${place})
  set(link ${CMAKE_BINARY_DIR}/links/${name})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
  file(CREATE_LINK ${path} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${folder})
endfunction()

# Installs a program into the program's folder, with a link in bin/ that leads there.
function(install_program program)
  install(TARGETS ${program} DESTINATION ${VENDLINGUA_PROGRAM_FOLDER})
  if(NOT WIN32)
    install_link(${VENDLINGUA_PROGRAM_FOLDER}/${program} ${CMAKE_INSTALL_BINDIR})
  endif()
endfunction()
