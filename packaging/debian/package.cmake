# The Debian package: everything that is installed anywhere, and what only a package of this
# distribution brings.

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Links and transcripts are opened by the desktop's own programs.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Norvane turns Scenarist Closed Caption files (.scc) into text that people can
read, search and compare. It decodes one file, the files of a folder, or
whatever arrives in a folder that it watches. What it cannot decode stays
visible as hexadecimal digits.

The command norvane-transcript does the same in shells and scripts.")

# Folders too, whatever the umask of the builder.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(package COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${CMAKE_BINARY_DIR};norvane;ALL;/;${CMAKE_BINARY_DIR};norvane;debian;/")
install(FILES debian/copyright DESTINATION share/doc/norvane ${package})
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz
  DESTINATION share/doc/norvane ${package})
install(FILES debian/lintian-overrides DESTINATION share/lintian/overrides RENAME norvane ${package})
