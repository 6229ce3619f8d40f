#include "platform/folder/host_code_page.h"

#include "platform/win32/win32_code_page.h"

namespace quillvane {

const CodePage* host_code_page(int number) { return win32_code_page(number); }

}  // namespace quillvane
