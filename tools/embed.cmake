# Writes a C++ source that holds the text files of a folder, in order of name:
#
#   cmake -D FOLDER=… -D NAME=kHelpSources -D OUTPUT=help_sources.cpp -P embed.cmake
#
# NAME is declared in tools/make_data/written_texts.h.
file(GLOB files ${FOLDER}/*.txt ${FOLDER}/*.words)
set(entries)
foreach(file IN LISTS files)
  get_filename_component(name "${file}" NAME)
  file(READ "${file}" text)
  string(APPEND entries "    {\"${name}\", R\"written(${text})written\"},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"tools/make_data/written_texts.h\"

namespace lectern::make_data {

namespace {

constexpr WrittenText ${NAME}List[] = {
${entries}};

}  // namespace

const std::span<const WrittenText> ${NAME} = ${NAME}List;

}  // namespace lectern::make_data
")
