#include "base/Files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "base/Failure.h"
#include "support/MemoryOutside.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::MemoryFolders;
using testing::TemporaryFolder;

/// No file of this process grows beyond the size, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

std::size_t EntriesOf(const std::string& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(Files, ASafelyWrittenFileHasItsContentAndNothingIsLeftBeside) {
  const TemporaryFolder folder;
  MemoryFolders places;
  WriteSafely(places, folder.File("a.txt"), "one");
  WriteSafely(places, folder.File("a.txt"), "two");
  EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "two");
  EXPECT_EQ(EntriesOf(folder.Path()), 1U);
}

TEST(Files, AFullDiskLeavesTheEarlierFile) {
  const TemporaryFolder folder;
  MemoryFolders places;
  WriteSafely(places, folder.File("a.txt"), "earlier");
  {
    const FullDisk full(100);
    EXPECT_THROW(WriteSafely(places, folder.File("a.txt"), std::string(100000, 'x')), Failure);
    EXPECT_THROW(
        {
          TextFile file(folder.File("b.txt"));
          for (int i = 0; i < 1000; ++i) file.Print(std::string(100, 'x'));
          file.Close();
        },
        Failure);
  }
  EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "earlier");
  EXPECT_EQ(EntriesOf(folder.Path()), 2U) << "no half-written file is left";
}

TEST(Files, AFolderThatCannotBeWrittenToIsAFailure) {
  MemoryFolders places;
  EXPECT_THROW(WriteSafely(places, "/proc/none/a.txt", "x"), Failure);
  EXPECT_THROW(TextFile("/proc/none/a.txt"), Failure);
  EXPECT_THROW(FolderHolds("/proc/none", "a.txt"), Failure);
  EXPECT_THROW(ReadWholeFile("/proc/none/a.txt"), Failure);
}

/// Ends the program hard at the moment when the new content is written and the old file still stands.
class KilledWhileSaving : public MemoryFolders {
 public:
  void WriteThrough(const std::string&) override { std::raise(SIGKILL); }
};

TEST(Files, AKilledProgramLeavesTheEarlierFile) {
  const TemporaryFolder folder;
  MemoryFolders places;
  WriteSafely(places, folder.File("a.txt"), "earlier");
  const pid_t child = fork();
  if (child == 0) {
    KilledWhileSaving killed;
    WriteSafely(killed, folder.File("a.txt"), "later");
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "earlier");
}

TEST(Files, NamesThatLeaveTheFolderAreNone) {
  for (const std::string& name : {std::string(""), std::string("."), std::string(".."), std::string("a/b"),
                                  std::string("a\\b"), std::string("a\0b", 3)}) {
    EXPECT_FALSE(IsFileName(name)) << name;
  }
  for (const char* name : {"a", ".a", "...", "محمد.txt", "a b"}) EXPECT_TRUE(IsFileName(name)) << name;
}

}  // namespace
}  // namespace qismora
