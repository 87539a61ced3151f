# What Windows reads in a program before it runs: icon, version and manifest.
set(windows_resources ${PROJECT_SOURCE_DIR}/data/windows)

if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/DrawnIcons.cmake)
  find_program(ICOTOOL icotool REQUIRED)
  draw_icon(pictures ${PROJECT_SOURCE_DIR}/data/icons/vendlingua.svg 16 20 24 32 40 48 64 256)
  set(VENDLINGUA_ICON ${CMAKE_BINARY_DIR}/icons/vendlingua.ico)
  # The largest one is kept as it was drawn: unpacked, it would be larger than all others together.
  set(packed ${pictures})
  list(TRANSFORM packed PREPEND "--raw=" AT -1)
  add_custom_command(OUTPUT ${VENDLINGUA_ICON}
    COMMAND ${ICOTOOL} --create --output=${VENDLINGUA_ICON} ${packed}
    DEPENDS ${pictures}
    COMMENT "Packing the icon of the programs")
  add_custom_target(vendlingua_icon DEPENDS ${VENDLINGUA_ICON})
endif()

# `description` is what the system calls the program.
function(add_windows_resources program description)
  if(NOT WIN32)
    return()
  endif()
  set(manifest ${windows_resources}/program.manifest)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
  configure_file(${windows_resources}/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${VENDLINGUA_ICON};${manifest}")
  target_sources(${program} PRIVATE ${resources})
  add_dependencies(${program} vendlingua_icon)
endfunction()
