// Form3, the shortcut window: it finds links whose target is gone, and removes or mends them.
#pragma once

#include <vector>

#include "forms/modal_windows.h"
#include "forms/shadow.h"
#include "lang/language_panel.h"
#include "shortcuts/link_removal.h"
#include "shortcuts/manual_fix.h"
#include "shortcuts/older_removal.h"
#include "shortcuts/shortcut_commands.h"
#include "shortcuts/shortcut_options.h"
#include "shortcuts/shortcut_scan.h"
#include "shortcuts/target_search.h"

namespace quillvane {

class Form3 final : public Window,
                    public ShortcutScan,
                    public OlderRemoval,
                    public TargetSearch,
                    public ManualFix,
                    public ShortcutCommands,
                    public LanguagePanel {
 public:
  // Both must outlive it.
  Form3(Session& session, ModalWindows& windows);

  void load();            // fills the window
  void activate();        // the window was shown
  void close() override;  // stores the options, ends the program

  // Whether a scan or a search for targets is in progress.
  [[nodiscard]] bool is_searching() const { return is_scanning() || is_reading_drive(); }

  ModalWindows& windows;  // the small windows that are open
  Shadow shadow;

  // What chameleonButton1 does with a link whose backup failed.
  UncopiedLinks uncopied_links = UncopiedLinks::kGo;
  // What came of the links of the last removal, with a backup or by the run without a user.
  std::vector<RemovedLink> removed_links;

  TextBox Text6{*this, "Text6", kHidden};  // mailbox: "1" runs the suite's run without a user

 protected:
  void resized() override;

 private:
  void connect_pages();
  void name_arrays();
  void apply_color();
  void search_targets_and_rescan();
  void run_unattended();

  ShortcutOptions options_;
};

}  // namespace quillvane
