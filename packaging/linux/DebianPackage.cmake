# The Debian package: "cpack -G DEB" in a build folder makes it. packaging/linux/build does so for a release.
set(debian ${CMAKE_BINARY_DIR}/debian)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vendlingua)
set(CPACK_PACKAGE_VENDOR "The Vendlingua developers")
set(CPACK_PACKAGE_CONTACT "Vendlingua developers <vendlingua@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Vending machines talk to their customers through a small character display.
Vendlingua opens the message file of a control board, shows every message as
the display will draw it, lets you translate it within the cells and
characters of the display, and compiles a choice of languages into Motorola
S-record flash files.

The package holds the editor and vendlingua-cli, which does the same on the
command line.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland, srecord")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Documents that only a Debian package has; they take the place of the licence file.
set(template ${CMAKE_CURRENT_LIST_DIR}/debian)
configure_file(${template}/copyright.in ${debian}/copyright @ONLY)
configure_file(${template}/changelog.in ${debian}/changelog @ONLY)
file(CREATE_LINK copyright ${debian}/LICENSE SYMBOLIC)
add_custom_command(OUTPUT ${debian}/changelog.gz
  COMMAND gzip -9 -n -c ${debian}/changelog > ${debian}/changelog.gz
  DEPENDS ${debian}/changelog)
add_custom_target(vendlingua_debian ALL DEPENDS ${debian}/changelog.gz)
install(FILES ${debian}/copyright ${debian}/LICENSE ${debian}/changelog.gz
  DESTINATION ${VENDLINGUA_DOCUMENT_FOLDER} COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${template}/postrm)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENTS_ALL Unspecified debian)
include(CPack)
