# Writes a table of C++ from a language's resource script, for programs without resources:
# cmake -D SCRIPT=german.rc -D NAME=GermanTexts -D OUT=german_texts.cpp -P write_texts.cmake
file(READ "${SCRIPT}" script)
# What stands around the lines of the table.
string(REGEX REPLACE "^.*\nBEGIN\n" "" script "${script}")
string(REGEX REPLACE "\nEND\n.*$" "\n" script "${script}")
string(REGEX REPLACE "(IDS_[A-Z0-9_]+), *L?(\"[^\n]*\")" "{\\1, L\\2}," script "${script}")
file(WRITE "${OUT}.new" "#include \"companion/texts.h\"
#include \"resources/text/text_ids.h\"

namespace tidewell {

const std::map<int, std::wstring>& ${NAME}() {
  static const std::map<int, std::wstring> texts = {
${script}
  };
  return texts;
}

}  // namespace tidewell
")
file(COPY_FILE "${OUT}.new" "${OUT}" ONLY_IF_DIFFERENT)
