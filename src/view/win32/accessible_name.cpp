#include "view/win32/accessible_name.h"

#include <initguid.h>

#include <objbase.h>
#include <oleacc.h>

namespace quillvane {

namespace {

// Lives as long as the program, as the names do; null when there is none.
IAccPropServices* name_service() {
  static IAccPropServices* const service = [] {
    void* made = nullptr;
    const HRESULT result = CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                            IID_IAccPropServices, &made);
    return SUCCEEDED(result) ? static_cast<IAccPropServices*>(made) : nullptr;
  }();
  return service;
}

}  // namespace

void name_for_readers(HWND control, const std::wstring& name) {
  SetWindowTextW(control, name.c_str());
  if (IAccPropServices* service = name_service()) {
    // A name that cannot be told leaves the text.
    static_cast<void>(service->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT),
                                              CHILDID_SELF, PROPID_ACC_NAME, name.c_str()));
  }
}

}  // namespace quillvane
