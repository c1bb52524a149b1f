#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "base/NewFile.h"
#include "support/FakePorts.h"
#include "support/FullDisk.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::FakeFolders;
using testing::FullDisk;
using testing::NamesIn;
using testing::ReadWholeFile;
using testing::TemporaryFolder;

void Write(const std::string& path, const std::string& content, Replace replace = Replace::Agreed) {
  FakeFolders folders;
  WriteSafely(folders, path, content, replace);
}

TEST(Files, AFullDiskLeavesTheEarlierFile) {
  const TemporaryFolder folder;
  Write(folder.File("a.txt"), "earlier");
  {
    const FullDisk full(100);
    EXPECT_THROW(Write(folder.File("a.txt"), std::string(100000, 'x')), FileFailure);
  }
  EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "earlier");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.txt"}) << "no half-written file is left";
}

TEST(Files, AFolderThatCannotBeWrittenToIsAFailure) {
  EXPECT_THROW(Write("/proc/none/a.txt", "x"), FileFailure);
  EXPECT_THROW(ListFiles("/proc/none"), FileFailure);
  EXPECT_THROW(ReadWholeFile("/proc/none/a.txt"), Failure);
}

TEST(Files, AFullDiskLeavesNoPartOfALine) {
  const TemporaryFolder folder;
  AppendLine(folder.File("log"), "first");
  {
    const FullDisk full(10);
    EXPECT_THROW(AppendLine(folder.File("log"), "second"), FileFailure);
  }
  EXPECT_EQ(ReadWholeFile(folder.File("log")), "first\r\n");
}

/// Whatever may have a file's name without being an ordinary file.
struct Obstacles {
  Obstacles() {
    std::ofstream(Folder.File("elsewhere")) << "not ours";
    fs::create_symlink(Folder.File("elsewhere"), Folder.File("link"));
    fs::create_symlink(Folder.File("nothing"), Folder.File("dangling link"));
    fs::create_symlink("/dev/zero", Folder.File("link to a device"));
    fs::create_hard_link(Folder.File("elsewhere"), Folder.File("second name"));
    mkfifo(Folder.File("pipe").c_str(), 0600);
    fs::create_directory(Folder.File("folder"));
  }

  TemporaryFolder Folder;
  static constexpr const char* Names[] = {"link",        "dangling link", "link to a device",
                                          "second name", "pipe",          "folder"};
};

// The test does not end if the program waits for a pipe or reads a device.
TEST(Files, LinksPipesDevicesAndFoldersAreRefusedAtOnce) {
  const Obstacles obstacles;
  const std::vector<std::string> before = NamesIn(obstacles.Folder.Path());
  for (const char* name : Obstacles::Names) {
    const std::string path = obstacles.Folder.File(name);
    const fs::file_type type = fs::symlink_status(path).type();
    EXPECT_THROW(Write(path, "x", Replace::WithoutAsking), FileFailure) << name;
    EXPECT_THROW(Write(path, "x", Replace::Nothing), FileFailure) << name;
    EXPECT_THROW(AppendLine(path, "x"), FileFailure) << name;
    if (name != std::string("second name")) {
      EXPECT_THROW(ReadWholeFile(path), FileFailure) << name;
    }
    EXPECT_EQ(fs::symlink_status(path).type(), type) << name;
  }
  EXPECT_EQ(ReadWholeFile(obstacles.Folder.File("elsewhere")), "not ours");
  EXPECT_EQ(NamesIn(obstacles.Folder.Path()), before);
}

TEST(Files, AnAgreedReplacementReplacesALinkAndNotItsTarget) {
  const Obstacles obstacles;
  for (const char* name : {"link", "dangling link", "second name"}) {
    Write(obstacles.Folder.File(name), "new", Replace::Agreed);
    EXPECT_EQ(ReadWholeFile(obstacles.Folder.File(name)), "new") << name;
  }
  for (const char* name : {"pipe", "folder"}) {
    EXPECT_THROW(Write(obstacles.Folder.File(name), "new", Replace::Agreed), FileFailure) << name;
  }
  EXPECT_EQ(ReadWholeFile(obstacles.Folder.File("elsewhere")), "not ours");
  EXPECT_FALSE(fs::exists(obstacles.Folder.File("nothing")));
}

TEST(Files, LinksAreFollowedToTheirEnd) {
  const TemporaryFolder folder;
  fs::create_directory(folder.File("far"));
  fs::create_symlink("far/second", folder.File("first"));
  fs::create_symlink("end", folder.File("far/second"));
  EXPECT_EQ(FollowLinks(folder.File("first")), folder.File("far/end"));
  fs::create_symlink("round", folder.File("round"));
  EXPECT_THROW(FollowLinks(folder.File("round")), FileFailure);
}

TEST(Files, AReplacedFileKeepsItsPermissions) {
  const TemporaryFolder folder;
  Write(folder.File("a.txt"), "earlier");
  for (const int mode : {0600, 0640, 0664, 0755}) {
    fs::permissions(folder.File("a.txt"), fs::perms(mode));
    Write(folder.File("a.txt"), "later");
    EXPECT_EQ(fs::status(folder.File("a.txt")).permissions(), fs::perms(mode));
  }
}

// In a shared folder anybody may put a new file in the place of somebody else's.
TEST(Files, AFileThatTheUserMayNotWriteToIsNotReplaced) {
  const TemporaryFolder folder;
  Write(folder.File("a.txt"), "earlier");
  fs::permissions(folder.File("a.txt"), fs::perms(0444));
  fs::permissions(folder.Path(), fs::perms(0777));
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setuid(nobody) != 0) _exit(1);
    for (const Replace replace : {Replace::WithoutAsking, Replace::Agreed}) {
      try {
        Write(folder.File("a.txt"), "later", replace);
        _exit(2);
      } catch (const FileFailure& failure) {
        if (failure.Reason != "you have no permission") _exit(3);
      }
    }
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "earlier");
}

/// A disk that reports an error when it is synchronized: the file, its directory, or the directory once more.
FakeFolders FailingDisk(int good) {
  FakeFolders disk;
  disk.Disk = [good](const std::string&) mutable {
    if (good-- == 0) throw FileFailure(EIO);
  };
  return disk;
}

TEST(Files, ADiskErrorLeavesTheEarlierFile) {
  const TemporaryFolder folder;
  Write(folder.File("a.txt"), "earlier");
  for (const int good : {0, 1}) {
    FakeFolders disk = FailingDisk(good);
    EXPECT_THROW(WriteSafely(disk, folder.File("a.txt"), "later", Replace::Agreed), FileFailure);
    EXPECT_EQ(ReadWholeFile(folder.File("a.txt")), "earlier");
    EXPECT_EQ(NamesIn(folder.Path()).size(), 1U);
  }
  FakeFolders disk = FailingDisk(2);
  EXPECT_THROW(WriteSafely(disk, folder.File("a.txt"), "later", Replace::Agreed), FileFailure)
      << "the new name may be lost";
  EXPECT_THROW(SyncToDisk(folder.File("missing")), FileFailure);
}

TEST(Files, ASaveRemovesTheUnfinishedFilesOfKilledProgramsAlone) {
  const TemporaryFolder folder;
  FakeFolders folders;
  NewFile running(folders, folder.File("b.txt"), Replace::Nothing);
  for (const char* name : {".report-7.part", ".report-of-mine.part"}) std::ofstream(folder.File(name)) << "x";
  Write(folder.File("a.txt"), "later");
  running.Commit("b");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{".report-of-mine.part", "a.txt", "b.txt"}));
}

TEST(Files, ANameThatLeavesItsFolderIsNoFileName) {
  using namespace std::string_literals;
  for (const auto& name : {""s, "."s, ".."s, "a/b"s, "a\\b"s, "a\0b"s})
    EXPECT_FALSE(IsFileName(name)) << name;
  for (const char* name : {"a", ".a", "...", "محمد.txt", "a b"}) EXPECT_TRUE(IsFileName(name)) << name;
}

}  // namespace
}  // namespace qismora
