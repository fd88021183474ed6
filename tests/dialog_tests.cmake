# kesto_dialog_test(NAME SOURCES ...): a test program with widgets, without a display.
function(kesto_dialog_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} dialog_main.cpp ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE kesto_host_dialog kesto_dialog_user kesto_test_support ${arg_LINKS})
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <QtWidgets/QWidget>)
  add_dependencies(${name} kesto_resources kesto-demo-printer kesto-lp kesto-print)
endfunction()

kesto_dialog_test(dialog_test
  SOURCES dialog_document_test.cpp dialog_options_test.cpp dialog_pane_test.cpp dialog_print_test.cpp
          portal_dialog_test.cpp
  LINKS Qt6::Network)
gtest_discover_tests(dialog_test DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# The look, once for each language and scale: both are set before the program starts.
kesto_dialog_test(dialog_look_test SOURCES dialog_look_test.cpp)
foreach(locale en_US de_DE fr_FR es_ES ja_JP zh_CN)
  foreach(percent 100 200)
    set(name dialog_look_test.${locale}.${percent})
    add_test(NAME ${name} COMMAND dialog_look_test)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;LC_ALL=${locale}.UTF-8;LANGUAGE=;KESTO_TEST_PERCENT=${percent}")
  endforeach()
endforeach()
