# What the command-line tool is built with: the headers of CLI11 and nlohmann-json, and awk. Sets
# TOLVA_CLI_HEADERS to a folder that has these headers and no others, so that a build for another
# system does not see those of this one; or TOLVA_CLI_MISSING to what is missing.
find_path(TOLVA_CLI11_HEADERS CLI/CLI.hpp NO_CMAKE_FIND_ROOT_PATH)
find_path(TOLVA_JSON_HEADERS nlohmann/json.hpp NO_CMAKE_FIND_ROOT_PATH)
find_program(TOLVA_AWK awk)
mark_as_advanced(TOLVA_CLI11_HEADERS TOLVA_JSON_HEADERS TOLVA_AWK)

set(TOLVA_CLI_MISSING)
if(NOT TOLVA_CLI11_HEADERS)
  list(APPEND TOLVA_CLI_MISSING "CLI11")
endif()
if(NOT TOLVA_JSON_HEADERS)
  list(APPEND TOLVA_CLI_MISSING "nlohmann-json")
endif()
if(NOT TOLVA_AWK)
  list(APPEND TOLVA_CLI_MISSING "awk")
endif()
list(JOIN TOLVA_CLI_MISSING ", " TOLVA_CLI_MISSING)

if(NOT TOLVA_CLI_MISSING)
  set(TOLVA_CLI_HEADERS ${PROJECT_BINARY_DIR}/cli/headers)
  file(MAKE_DIRECTORY ${TOLVA_CLI_HEADERS})
  file(CREATE_LINK ${TOLVA_CLI11_HEADERS}/CLI ${TOLVA_CLI_HEADERS}/CLI SYMBOLIC COPY_ON_ERROR)
  file(CREATE_LINK ${TOLVA_JSON_HEADERS}/nlohmann ${TOLVA_CLI_HEADERS}/nlohmann
       SYMBOLIC COPY_ON_ERROR)
endif()
