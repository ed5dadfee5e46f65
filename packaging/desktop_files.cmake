# Where free desktops and shells look for things.

set(share ${CMAKE_INSTALL_DATADIR})
set(NORVANE_ZSH_FOLDER ${share}/zsh/site-functions CACHE STRING "Folder of the completions for zsh")

set(pages norvane-transcript)
if(NORVANE_DESKTOP)
  list(APPEND pages norvane)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/norvane.desktop ${PROJECT_SOURCE_DIR}/resources/norvane-page.desktop
    DESTINATION ${share}/applications)
  install(FILES com.bellwick.norvane.metainfo.xml DESTINATION ${share}/metainfo)
  install(FILES norvane-mime.xml DESTINATION ${share}/mime/packages RENAME norvane.xml)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/norvane.svg
    DESTINATION ${share}/icons/hicolor/scalable/apps)
  foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES icons/${size}.png DESTINATION ${share}/icons/hicolor/${size}x${size}/apps
      RENAME norvane.png)
  endforeach()
endif()

foreach(page ${pages})
  configure_file(man/${page}.1 ${page}.1 @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${page}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

install(FILES completions/norvane-transcript.bash DESTINATION ${share}/bash-completion/completions
  RENAME norvane-transcript)
install(FILES completions/norvane-transcript.fish DESTINATION ${share}/fish/vendor_completions.d)
install(FILES completions/_norvane-transcript DESTINATION ${NORVANE_ZSH_FOLDER})
