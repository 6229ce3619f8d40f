// A part of a window with its controls and fields.
//
// A page owns what it declares: each control and each field registers itself on the window under
// its given name, so that scripts find it there, and the window's class derives from its pages. A
// control is declared in one line: its kind, its name, its state at design time, what it is.
//
// The pages of one window share its name and its session: they derive from Page virtually, and the
// window's class makes the one that they have.
#pragma once

#include "forms/control.h"
#include "forms/window.h"
#include "support/session.h"

namespace quillvane {

class Page {
 public:
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  [[nodiscard]] const Platform& platform() const { return session.platform; }

  Session& session;

 protected:
  // Both must outlive it.
  Page(Window& owner, Session& shared) : session(shared), window(owner) {}
  ~Page() = default;

  Window& window;
};

}  // namespace quillvane
