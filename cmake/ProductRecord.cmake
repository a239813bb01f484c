# The product's record for the sources: #include "Product.h" and link quivera_product. Needs the target system's name.
if(WIN32)
  list(APPEND QUIVERA_PARTS ${QUIVERA_PARTS_WINDOWS})
endif()

set(product_parts)
foreach(part IN LISTS QUIVERA_PARTS)
  if(NOT part MATCHES "^([^|]+)[|]([^|]+)[|]([^|]+)[|]([^|]+)[|]([^|]+)$")
    message(FATAL_ERROR "cmake/Product.cmake: a part needs five fields: ${part}")
  endif()
  string(APPEND product_parts
    "    {\"${CMAKE_MATCH_1}\", \"${CMAKE_MATCH_2}\", \"${CMAKE_MATCH_3}\", \"${CMAKE_MATCH_5}\"},\n")
  list(APPEND QUIVERA_LICENSE_TEXTS ${CMAKE_MATCH_4})
endforeach()
list(REMOVE_DUPLICATES QUIVERA_LICENSE_TEXTS)
foreach(text IN LISTS QUIVERA_LICENSE_TEXTS)
  if(NOT EXISTS ${PROJECT_SOURCE_DIR}/packaging/licenses/${text})
    message(FATAL_ERROR "cmake/Product.cmake names packaging/licenses/${text}, which does not exist")
  endif()
endforeach()

configure_file(cmake/Product.h.in ${PROJECT_BINARY_DIR}/generated/Product.h @ONLY)
add_library(quivera_product INTERFACE)
target_include_directories(quivera_product INTERFACE ${PROJECT_BINARY_DIR}/generated)
