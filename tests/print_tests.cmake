kesto_test(print_test SOURCES print_server_test.cpp print_test.cpp print_usual_test.cpp LINKS Qt6::Network)
add_dependencies(print_test kesto-lp kesto-print kesto-panel kesto-demo-printer)

add_test(NAME package_test COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/package_test.sh ${PROJECT_BINARY_DIR})
add_test(NAME run_test COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/run_test.sh ${PROJECT_SOURCE_DIR})
set_tests_properties(package_test PROPERTIES SKIP_RETURN_CODE 77)
