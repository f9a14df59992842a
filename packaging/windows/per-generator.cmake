# Read by CPack once for each generator.
if(CPACK_GENERATOR STREQUAL "NSIS")
  string(APPEND CPACK_PACKAGE_FILE_NAME -setup)
  set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/without-starter.cmake)
endif()
