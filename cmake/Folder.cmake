# One folder, one target. Other targets see a folder's headers only through a link of the folder's name in a separate
# include directory, so including from a folder that the target does not link fails to build.

# kesto_headers(TARGET SCOPE FOLDER): gives TARGET the include directory of FOLDER.
function(kesto_headers target scope folder)
  string(REPLACE / _ name ${folder})
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  get_filename_component(parent ${root}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  target_include_directories(${target} ${scope} ${root})
endfunction()

# kesto_folder(TARGET FOLDER SOURCES ... LINKS ...): the static library of one folder. Moc reads its headers, and those
# of no program or test.
function(kesto_folder target folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SOURCES;LINKS")
  add_library(${target} STATIC ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  kesto_headers(${target} PUBLIC ${folder})
  target_link_libraries(${target} PUBLIC ${arg_LINKS})
endfunction()
