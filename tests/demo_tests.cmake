kesto_test(demo_test SOURCES demo_folders_test.cpp demo_printer_test.cpp LINKS kesto_demo Cups::Cups)
add_dependencies(demo_test kesto-demo-printer kesto-panel)
add_test(NAME demo_neighbour_test
         COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/demo_neighbour_test.py ${PROJECT_BINARY_DIR})
