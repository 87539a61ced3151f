# Draws the icons of data/icons as pictures of the sizes in which they are shown, so that none is blurred by
# being scaled and the programs need nothing that draws SVG.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# The pictures of an icon, NAME-SIZE.png in icons/ of the folder that is built: puts their files into `result`.
function(draw_icon result icon)
  cmake_path(GET icon STEM name)
  set(pictures)
  foreach(size IN LISTS ARGN)
    set(picture ${CMAKE_CURRENT_BINARY_DIR}/icons/${name}-${size}.png)
    add_custom_command(OUTPUT ${picture}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/icons
      COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${picture} ${icon}
      DEPENDS ${icon}
      COMMENT "Drawing ${name} in ${size} pixels")
    list(APPEND pictures ${picture})
  endforeach()
  set(${result} ${pictures} PARENT_SCOPE)
endfunction()
