# A program with windows as one file that needs nothing but Windows: icon, version, manifest and the Italian of
# the toolkit's own texts are in it, and of the toolkit's plugins the one for Windows' screen. Further plugins
# are named after the description.
function(programma_windows programma descrizione)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/programma.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${programma}.rc @ONLY)
  target_sources(${programma} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${programma}.rc)
  set_target_properties(${programma} PROPERTIES WIN32_EXECUTABLE ON)
  target_link_options(${programma} PRIVATE -s)
  find_file(ITALIANO_QT qtbase_it.qm PATHS /usr/share/qt6/translations NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set_source_files_properties(${ITALIANO_QT} PROPERTIES QT_RESOURCE_ALIAS qtbase_it.qm)
  qt_add_resources(${programma} traduzioni PREFIX /traduzioni FILES ${ITALIANO_QT})
  # Where the toolkit looks for its translations.
  set(configurazione ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/qt.conf)
  set_source_files_properties(${configurazione} PROPERTIES QT_RESOURCE_ALIAS qt.conf)
  qt_add_resources(${programma} configurazione PREFIX /qt/etc FILES ${configurazione})
  qt_import_plugins(${programma} NO_DEFAULT INCLUDE Qt6::QWindowsIntegrationPlugin ${ARGN})
endfunction()
