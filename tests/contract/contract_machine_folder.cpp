// The contract tests' machine folder.
#include "tests/contract/contract_host.h"
#include "tests/contract/contract_machine.h"
#include "tests/support/temp_machine.h"

namespace quillvane {

namespace {

class FolderContractMachine final : public ContractMachine {
 public:
  FolderContractMachine() {
    machine_.add_folder(folder());
    machine_.add_registry_key(Hive::kCurrentUser, key());
  }

  [[nodiscard]] Platform platform() override { return machine_.platform(); }
  [[nodiscard]] std::string folder() const override { return "C:\\Contract"; }
  [[nodiscard]] std::string key() const override { return "Software\\Quillvane\\ContractTest"; }
  [[nodiscard]] std::uint32_t constant_attributes() const override {
    return constant_attributes_of_host();
  }
  [[nodiscard]] bool lists_like_windows() const override { return true; }
  [[nodiscard]] bool reads_show_commands() const override { return true; }

  void add_file(const std::string& path, std::string_view content) override {
    machine_.add_text_file(path, content);
  }
  void add_big_file(const std::string& path, std::uint64_t bytes) override {
    machine_.add_file(path, bytes);
  }
  void add_folder(const std::string& path) override { machine_.add_folder(path); }
  void add_link(const std::string& path, const std::string& target) override {
    links_.add(machine_.host_path(path), machine_.host_path(target));
  }
  void hold_open(const std::string& path) override { machine_.machine().add_in_use(path); }
  void set_environment(const std::string& name, const std::string& value) override {
    machine_.set_environment(name, value);
  }

 private:
  TempMachine machine_;
  HostLinks links_;
};

}  // namespace

std::unique_ptr<ContractMachine> ContractMachine::make() {
  return std::make_unique<FolderContractMachine>();
}

}  // namespace quillvane
