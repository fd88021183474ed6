kesto_test(portal_test SOURCES portal_channel_test.cpp portal_settings_test.cpp LINKS kesto_host_channel)
kesto_test(portal_service_test SOURCES portal_service_test.cpp LINKS kesto_host_portal Qt6::Network)
add_executable(portal-dialog-stand-in portal_dialog_stand_in.cpp)
target_link_libraries(portal-dialog-stand-in PRIVATE kesto_host_channel Qt6::Network)
add_dependencies(portal_service_test portal-dialog-stand-in kesto-portal)

add_test(NAME portal_end_to_end_test
         COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/portal_end_to_end_test.py ${PROJECT_BINARY_DIR})
set_tests_properties(portal_end_to_end_test PROPERTIES SKIP_RETURN_CODE 77)
