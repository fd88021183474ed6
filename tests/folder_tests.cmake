kesto_test(folder_test
  SOURCES folder_answer_test.cpp folder_popup_test.cpp folder_query_test.cpp folder_soap_test.cpp
  LINKS kesto_plugin Qt6::Network)
