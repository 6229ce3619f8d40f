// What a machine folder has in place of the outward parts of a system: rights, shell, the suite's
// channel and the notification area. What reaches them is recorded as an effect.
#pragma once

#include <functional>

#include "platform/file_system.h"
#include "platform/folder/machine_state.h"
#include "platform/message_loop.h"
#include "platform/security.h"
#include "platform/shell.h"
#include "platform/suite_channel.h"
#include "platform/tray.h"
#include "platform/virtual/effect_log.h"

namespace quillvane {

// Rights are not played: a call is recorded and changes nothing.
class MachineSecurity final : public Security {
 public:
  explicit MachineSecurity(EffectLog& effects) : effects_(effects) {}

  void set_key_access(Hive hive, const std::string& key, const std::string& account) override;
  void set_file_access(const std::string& account, const std::string& path,
                       std::uint32_t mask) override;

 private:
  EffectLog& effects_;
};

class MachineShell final : public Shell {
 public:
  // `empty_bin` removes what lies in the recycle bin of every drive.
  MachineShell(const MachineState& state, EffectLog& effects, FileSystem& files,
               const MessageLoop& loop, std::function<void()> empty_bin);

  // Nothing is started; what is there counts as opened.
  int open(const ShellRequest& request) override;
  bool show_properties(const std::string& path) override;
  [[nodiscard]] std::string special_folder(int id) const override;
  bool recycle(const std::string& path) override;
  void empty_recycle_bin() override;
  void update_recycle_bin_icon() override {}
  void show_help(const std::string& file, int topic) override;

 private:
  const MachineState& state_;
  EffectLog& effects_;
  FileSystem& files_;
  const MessageLoop& loop_;
  std::function<void()> empty_bin_;
};

// The suite's window is one of the titles of machine.json.
class MachineSuiteChannel final : public SuiteChannel {
 public:
  MachineSuiteChannel(const MachineState& state, EffectLog& effects)
      : state_(state), effects_(effects) {}

  void publish(const std::string& text) override;
  [[nodiscard]] bool notify(const std::string& title, std::size_t length) override;
  void withdraw() override {}

 private:
  const MachineState& state_;
  EffectLog& effects_;
};

class MachineTray final : public Tray {
 public:
  explicit MachineTray(EffectLog& effects) : effects_(effects) {}

  void add(const void* owner, const std::string& tip,
           std::function<void(int message)> mouse) override;
  void modify(const void* owner, const std::string& tip) override;
  void remove(const void* owner) override;

 private:
  EffectLog& effects_;
};

}  // namespace quillvane
