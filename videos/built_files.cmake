# Writes the list of built files with their digests: cmake -DLIST=file.cpp -P built_files.cmake -- FILE...
set(rows "")
set(count 0)
set(is_file NO)
foreach(i RANGE ${CMAKE_ARGC})
  if(is_file AND DEFINED CMAKE_ARGV${i})
    cmake_path(GET CMAKE_ARGV${i} FILENAME name)
    file(SHA256 "${CMAKE_ARGV${i}}" digest)
    string(APPEND rows "    {\"${name}\", \"${digest}\"},\n")
    math(EXPR count "${count} + 1")
  elseif("${CMAKE_ARGV${i}}" STREQUAL "--")
    set(is_file YES)
  endif()
endforeach()
file(WRITE "${LIST}" "#include <array>

#include \"windows/platform/BuiltFiles.h\"

namespace qismora {

constexpr std::array<BuiltFile, ${count}> files = {{
${rows}}};
const std::span<const BuiltFile> builtFiles = files;

}  // namespace qismora
")
