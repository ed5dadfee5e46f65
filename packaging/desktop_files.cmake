# Where free desktops and shells look for things.

find_program(GZIP gzip REQUIRED)
set(share ${CMAKE_INSTALL_DATADIR})

# compressed(SOURCE NAME): SOURCE as NAME.gz in the build folder, without a time so that it is the same
# in each build.
set(compressed_files)
function(compressed source name)
  set(target ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${target} DEPENDS ${source} VERBATIM
    COMMAND sh -c [[exec "$1" -9nc "$2" >"$3"]] sh ${GZIP} ${source} ${target})
  set(compressed_files ${compressed_files} ${target} PARENT_SCOPE)
endfunction()

set(commands norvane-transcript)
if(NORVANE_DESKTOP)
  list(APPEND commands norvane)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/norvane.desktop DESTINATION ${share}/applications)
  install(FILES com.bellwick.norvane.metainfo.xml DESTINATION ${share}/metainfo)
  install(FILES norvane-mime.xml DESTINATION ${share}/mime/packages RENAME norvane.xml)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/norvane.svg
    DESTINATION ${share}/icons/hicolor/scalable/apps)
  foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES icons/${size}.png DESTINATION ${share}/icons/hicolor/${size}x${size}/apps
      RENAME norvane.png)
  endforeach()
endif()

foreach(command ${commands})
  compressed(${CMAKE_CURRENT_SOURCE_DIR}/man/${command}.1 ${command}.1)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${command}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
compressed(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog changelog.Debian)
add_custom_target(norvane_compressed ALL DEPENDS ${compressed_files})

install(FILES completions/norvane-transcript.bash DESTINATION ${share}/bash-completion/completions
  RENAME norvane-transcript)
install(FILES completions/norvane-transcript.fish DESTINATION ${share}/fish/vendor_completions.d)

# Debian's zsh looks elsewhere for what its packages bring.
install(CODE [[
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(zsh_folder vendor-completions)
  else()
    set(zsh_folder site-functions)
  endif()]])
install(CODE "
  file(INSTALL \"${CMAKE_CURRENT_SOURCE_DIR}/completions/_norvane-transcript\"
    DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${share}/zsh/\${zsh_folder}\")")
