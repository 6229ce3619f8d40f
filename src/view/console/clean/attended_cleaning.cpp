#include "view/console/clean/attended_cleaning.h"

#include "cleaning/thumbnail_policy.h"
#include "core/form7.h"

namespace quillvane {

AttendedCleaning::AttendedCleaning(ConsoleIo& io, ConsoleMachine& machine)
    : dialogs(io),
      watch(machine.platform()),
      program(machine.platform().with({.files = &watch, .dialogs = &dialogs})),
      attendance(io, machine.loop(), program),
      put_back_([this, &machine] {
        if (!watch.cleaning()) return;
        if (const auto registry = machine.another_registry()) enablethumbcache(*registry);
      }) {
  attendance.on_window = [this](Form7& form) { form.observer = &watch; };
}

}  // namespace quillvane
