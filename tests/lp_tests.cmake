kesto_test(lp_test SOURCES lp_entries_test.cpp lp_memory_test.cpp lp_secrets_test.cpp)
add_dependencies(lp_test kesto-lp)
