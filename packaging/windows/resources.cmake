# What Windows reads of a program without starting it: icon, version, manifest.
set(ZARIM_ICON "" CACHE FILEPATH "The program's icon, as zarim_icons writes it (zarim.ico)")
function(zarim_resources target)
  set(folder ${PROJECT_SOURCE_DIR}/packaging/windows)
  configure_file(${folder}/zarim.manifest ${CMAKE_CURRENT_BINARY_DIR}/zarim.manifest @ONLY)
  configure_file(${folder}/zarim.rc.in ${CMAKE_CURRENT_BINARY_DIR}/zarim.rc @ONLY)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/zarim.rc PROPERTIES COMPILE_OPTIONS -c65001
                              OBJECT_DEPENDS "${ZARIM_ICON};${CMAKE_CURRENT_BINARY_DIR}/zarim.manifest")
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/zarim.rc)
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
