# The panel folder an aircraft uses: the module, its panel.cfg and the install
# notes, in <build>/panel. `cmake --build --preset mingw --target panel-folder`
# makes the Windows one.
set(KESTRANE_PANEL_FOLDER ${CMAKE_BINARY_DIR}/panel)
add_custom_target(panel-folder
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${KESTRANE_PANEL_FOLDER}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${KESTRANE_PANEL_FOLDER}
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:kestrane> ${PROJECT_SOURCE_DIR}/panel/panel.cfg
          ${PROJECT_SOURCE_DIR}/panel/INSTALL.txt ${KESTRANE_PANEL_FOLDER}
  DEPENDS kestrane
  COMMENT "Panel folder: ${KESTRANE_PANEL_FOLDER}"
  VERBATIM)
