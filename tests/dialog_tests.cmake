# kesto_dialog_test(NAME SOURCES ...): a test program with widgets, without a display.
function(kesto_dialog_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} dialog_main.cpp ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE kesto_dialog_user kesto_test_support ${arg_LINKS})
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <QtWidgets/QWidget>)
  add_dependencies(${name} kesto_resources kesto-demo-printer kesto-print)
endfunction()

kesto_dialog_test(dialog_test SOURCES dialog_pane_test.cpp)
gtest_discover_tests(dialog_test DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
