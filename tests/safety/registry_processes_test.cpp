// Several programs write to one machine's registry at once, and one of them may hold it for a
// while: everybody's writes succeed, and nobody's read takes the lock for an empty registry.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/folder/registry_store.h"
#include "support/registry_text.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

constexpr int kPrograms = 4;
constexpr int kWrites = 40;
constexpr const char* kKey = "software\\Quillvane\\Tidewrack Deluxe\\timer";

std::string name_of(int program, int number) {
  return "p" + std::to_string(program) + "-" + std::to_string(number);
}

std::unique_ptr<FolderRegistry> open_store(const std::string& file, EffectLog& effects) {
  auto opened = FolderRegistry::open(file, effects);
  auto* registry = std::get_if<std::unique_ptr<FolderRegistry>>(&opened);
  return registry == nullptr ? nullptr : std::move(*registry);
}

// One program's work; answers how many of its steps failed.
int write_and_read(const std::string& file, int program) {
  EffectLog effects;
  const auto registry = open_store(file, effects);
  if (registry == nullptr) return 100;
  int failed = 0;
  for (int i = 0; i < kWrites; ++i) {
    const std::string name = name_of(program, i);
    if (!WriteRegistryString(*registry, Hive::kLocalMachine, kKey, name, name)) ++failed;
    if (ReadRegistryString(*registry, Hive::kLocalMachine, kKey, name).text != name) ++failed;
  }
  return failed;
}

// Runs the work of all programs, each in a process that waits until the others are there.
std::vector<int> results_of_all(const std::string& file) {
  int gate[2];
  EXPECT_EQ(pipe(gate), 0);
  std::vector<pid_t> children;
  for (int program = 0; program < kPrograms; ++program) {
    const pid_t child = fork();
    if (child == 0) {
      close(gate[1]);
      char nothing = 0;
      static_cast<void>(read(gate[0], &nothing, 1));  // ends when the last writer's end is closed
      _exit(write_and_read(file, program));
    }
    children.push_back(child);
  }
  close(gate[0]);
  close(gate[1]);
  std::vector<int> results;
  for (const pid_t child : children) {
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    results.push_back(WIFEXITED(status) ? WEXITSTATUS(status) : -1);
  }
  return results;
}

void expect_all_values(const std::string& file) {
  EffectLog effects;
  const auto registry = open_store(file, effects);
  ASSERT_NE(registry, nullptr);
  for (int program = 0; program < kPrograms; ++program) {
    for (int i = 0; i < kWrites; ++i) {
      const std::string name = name_of(program, i);
      EXPECT_EQ(ReadRegistryString(*registry, Hive::kLocalMachine, kKey, name).text, name);
    }
  }
}

}  // namespace

TEST(RegistryProcesses, FourThatMakeTheRegistryAndWriteToItAtOnceAllSucceed) {
  const TempFolder folder;
  const std::string file = folder.path_of("registry.db");
  EXPECT_EQ(results_of_all(file), std::vector<int>(kPrograms, 0));
  expect_all_values(file);
}

TEST(RegistryProcesses, FourThatWriteToARegistryThatIsThereAllSucceed) {
  const TempFolder folder;
  const std::string file = folder.path_of("registry.db");
  {
    EffectLog effects;
    ASSERT_TRUE(open_store(file, effects)->create_key(Hive::kLocalMachine, kKey));
  }
  EXPECT_EQ(results_of_all(file), std::vector<int>(kPrograms, 0));
  expect_all_values(file);
}

}  // namespace quillvane
