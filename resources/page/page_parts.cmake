# Makes C++ of the page's style and script, with the hashes by which the page's policy allows them:
# cmake -D FOLDER=resources/page -D TARGET=page_parts.cpp -P page_parts.cmake

# The SHA-256 of a text as a content security policy writes it.
function(policy_hash text result)
  set(letters ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  string(SHA256 digits "${text}")
  string(APPEND digits 00) # 33 bytes: the last letter stands for these and becomes the "="
  set(base64)
  foreach(at RANGE 0 60 6)
    string(SUBSTRING ${digits} ${at} 6 group)
    foreach(shift 18 12 6 0)
      math(EXPR letter "(0x${group} >> ${shift}) & 63")
      string(SUBSTRING ${letters} ${letter} 1 letter)
      string(APPEND base64 ${letter})
    endforeach()
  endforeach()
  string(REGEX REPLACE "A$" "=" base64 ${base64})
  set(${result} "sha256-${base64}" PARENT_SCOPE)
endfunction()

file(READ ${FOLDER}/viewer.css style)
file(READ ${FOLDER}/viewer.js script)
policy_hash("${style}" style_hash)
policy_hash("${script}" script_hash)
file(WRITE ${TARGET} "#include \"command/page_parts.h\"

namespace norvane {

const std::string_view kPageStyleHash = \"${style_hash}\";
const std::string_view kPageScriptHash = \"${script_hash}\";
const std::string_view kPageStyle = R\"page(${style})page\";
const std::string_view kPageScript = R\"page(${script})page\";

} // namespace norvane
")
