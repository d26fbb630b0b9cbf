#include <filesystem>
#include <gtest/gtest.h>

#include "base/files/file_slots.h"
#include "base/files/path_names.h"
#include "base/files/text_encoding.h"
#include "tests/kit/test_window.h"

namespace lectern::files {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
  TemporaryFolder folder;
  FileSystem files{folder.Path()};
  FileSlots slots{files};

  std::string Name(const std::string& rest) const { return folder.Path() + rest; }
};

TEST_F(Files, AreFoundWithoutRegardToCaseAndByBothSlashes) {
  folder.Write("KJV/Song of Solomon.txt", "x");
  folder.Write("Ünnä/Ä.not", "y");
  EXPECT_TRUE(files.FileExists(Name("\\kjv/SONG of solomon.TXT")));
  EXPECT_TRUE(files.FileExists(Name("\\üNNÄ\\ä.NOT")));
  EXPECT_TRUE(files.FileExists("kjv\\song of solomon.txt"));
  EXPECT_FALSE(files.FileExists(Name("\\KJV\\Song.txt")));
  EXPECT_TRUE(files.FolderExists(Name("/Kjv")));

  // A new file goes into the folder that is there; an old one keeps its name.
  slots.OpenForAppending(1, Name("\\kjv\\New.txt"));
  slots.OpenForAppending(2, Name("\\KJV\\song OF Solomon.txt"));
  slots.PrintLine(2, "more");
  slots.CloseAll();
  EXPECT_TRUE(fs::exists(folder.Path() + "/KJV/New.txt"));
  EXPECT_EQ(folder.Read("KJV/Song of Solomon.txt"), "xmore\r\n");

  // Of two names that differ in case only, the one as written comes first.
  folder.Write("a.txt", "small");
  folder.Write("A.txt", "capital");
  slots.OpenForReading(1, Name("\\a.txt"));
  EXPECT_EQ(slots.ReadLine(1), "small");
}

TEST_F(Files, FailWithTheNumberThatFits) {
  folder.Write("there.txt", "x");
  folder.Write("folder/file.txt", "x");
  const auto read = [&](const char* name) { return ErrorOf([&] { slots.OpenForReading(1, Name(name)); }); };
  const auto append = [&](const std::string& name) {
    const int error = ErrorOf([&] { slots.OpenForAppending(1, Name("\\" + name)); });
    slots.CloseAll();
    return error;
  };
  const auto rename = [&](const char* from, const char* to) {
    return ErrorOf([&] { files.Rename(Name(from), Name(to)); });
  };
  EXPECT_EQ(read("\\missing.txt"), 53);
  EXPECT_EQ(read("\\nowhere\\missing.txt"), 76);
  EXPECT_EQ(read("\\folder"), 75);
  EXPECT_EQ(read("\\there.txt\\x"), 76);
  EXPECT_EQ(append("nowhere\\new.txt"), 76);
  EXPECT_EQ(ErrorOf([&] { files.Delete(Name("\\folder")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files.Length(Name("\\missing.txt")); }), 53);
  for (const std::string bad : {"a\tb", "a\nb", "\x7F"}) {
    EXPECT_EQ(append(bad + ".bkm"), 52) << bad;
    EXPECT_EQ(ErrorOf([&] { files.Delete(Name("\\" + bad)); }), 52) << bad;
  }
  EXPECT_EQ(append(std::string(252, 'n') + ".bk"), 0);
  EXPECT_EQ(append(std::string(252, 'n') + ".bkm"), 52);
  EXPECT_EQ(rename("\\missing.txt", "\\new.txt"), 53);
  EXPECT_EQ(rename("\\there.txt", "\\nowhere\\new.txt"), 76);
  EXPECT_EQ(rename("\\there.txt", "\\FOLDER"), 58);
  EXPECT_EQ(rename("\\there.txt", "\\moved.txt"), 0);
  EXPECT_EQ(folder.Read("moved.txt"), "x");
}

TEST_F(Files, SlotsKeepToTheirNumbers) {
  folder.Write("a.txt", "one\r\ntwo");
  for (const int slot : {0, 1, 256}) {
    EXPECT_EQ(ErrorOf([&] { slots.ReadLine(slot); }), 52);
    EXPECT_EQ(ErrorOf([&] { slots.EndOfFile(slot); }), 52);
    EXPECT_EQ(ErrorOf([&] { slots.PrintLine(slot, "x"); }), 52);
    EXPECT_EQ(ErrorOf([&] { slots.OpenForReading(slot, Name("\\a.txt")); }), slot == 1 ? 0 : 52);
  }
  slots.OpenForReading(255, Name("\\a.txt"));
  EXPECT_EQ(ErrorOf([&] { slots.OpenForAppending(1, Name("\\a.txt")); }), 55);
  EXPECT_EQ(slots.ReadLine(1), "one");
  EXPECT_EQ(slots.ReadLine(1), "two");
  EXPECT_TRUE(slots.EndOfFile(1));
  EXPECT_EQ(ErrorOf([&] { slots.ReadLine(1); }), 62);
  slots.Close(1);
  slots.Close(1);
  EXPECT_FALSE(slots.IsOpen(1));
  EXPECT_TRUE(slots.IsOpen(255));
  // Nothing is read from a file that is written to.
  slots.OpenForAppending(1, Name("\\b.txt"));
  slots.PrintLine(1, "b");
  EXPECT_TRUE(slots.EndOfFile(1));
  EXPECT_EQ(ErrorOf([&] { slots.ReadLine(1); }), 52);
  EXPECT_EQ(folder.Read("b.txt"), "");
  slots.Close(1);
  EXPECT_EQ(folder.Read("b.txt"), "b\r\n");
}

TEST_F(Files, ReadQuotedRecordsFieldByField) {
  folder.Write(
      "r.dat",
      "\"a, b\", 50\r\n  \"spaced\" ,plain text , -7x\n,\"\"\r\n\"three\",\"fields\",\"here\"\r\n12\r\n");
  slots.OpenForReading(1, Name("\\r.dat"));
  std::vector<std::string> fields;
  while (!slots.EndOfFile(1)) fields.emplace_back(slots.ReadField(1));
  EXPECT_EQ(fields, (std::vector<std::string>{"a, b", "50", "spaced", "plain text ", "-7x", "", "", "three",
                                              "fields", "here", "12"}));
  slots.Close(1);

  folder.Write("n.dat", "17,-4,many,\"9 lives\"\r\n\"open");
  slots.OpenForReading(1, Name("\\n.dat"));
  for (const int number : {17, -4, 0, 9}) EXPECT_EQ(slots.ReadNumber(1), number);
  EXPECT_EQ(slots.ReadField(1), "open");
  EXPECT_EQ(ErrorOf([&] { slots.ReadField(1); }), 62);
  slots.Close(1);

  slots.OpenForAppending(2, Name("\\w.dat"));
  slots.WriteRecord(2, "name", std::string("a, b"), 50, "");
  slots.Close(2);
  EXPECT_EQ(folder.Read("w.dat"), "\"name\",\"a, b\",50,\"\"\r\n");
}

TEST_F(Files, KeepTextOfAnyScript) {
  // What the code page can hold is written in it, and read back from it.
  EXPECT_EQ(Encode("café – “quoted” €"), "caf\xE9 \x96 \x93quoted\x94 \x80");
  EXPECT_EQ(Decode("caf\xE9\r\n\xE2\x80\x94\r\n"), "café\r\n—\r\n");
  // What it cannot hold, or what could be mistaken, is written as UTF-8.
  for (const std::string text : {"ἐν ἀρχῇ", "בְּרֵאשִׁית", "Ã©", "plain", "mixed é and ω", "",
                                 // In the code page the first line would be UTF-8 for another letter.
                                 "Õ—\r\né\r\n"}) {
    EXPECT_EQ(Decode(Encode(text)), text);
  }
  for (int byte = 0x80; byte < 0x100; ++byte) {
    const std::string line = std::string("x") + static_cast<char>(byte) + "y";
    EXPECT_EQ(Encode(Decode(line)), line) << byte;
  }
}

// An empty file, as a full disk leaves one, does not push out a version that holds something.
TEST_F(Files, KeepTheLastVersionOfWhatAPersonMade) {
  const std::string name = Name("\\Notes\\MINE.not");
  const std::pair<const char*, const char*> versions[] = {
      {"first", "first"}, {"", "first"}, {"second", "second"}};
  for (const auto& [version, kept] : versions) {
    folder.Write("notes/mine.not", version);
    files.DeleteKeepingBackup(name);
    EXPECT_FALSE(files.FileExists(name));
    EXPECT_EQ(folder.Read("backup/notes/mine.not"), kept);
  }
  EXPECT_EQ(ErrorOf([&] { files.DeleteKeepingBackup(name); }), 53);
}

TEST_F(Files, KeepTheVersionBeforeAndTheLongestOfThoseBeforeIt) {
  const auto replace = [&](const char* version) {
    folder.Write("mine.not", version);
    files.DeleteKeepingBackup(Name("\\mine.not"));
    EXPECT_EQ(folder.Read("backup/mine.not"), version);
  };
  const auto expect_before = [&](const char* last, const char* longest) {
    EXPECT_EQ(folder.Read("backup/backup/mine.not"), last);
    EXPECT_EQ(folder.Read("backup/backup/backup/mine.not"), longest);
  };
  replace("all of it");
  expect_before("(missing)", "(missing)");
  replace("half");
  replace("half");  // saved unaltered
  expect_before("all of it", "(missing)");
  replace("part");
  expect_before("half", "all of it");
  for (const char* version : {"other", "some", "half", "some"}) replace(version);
  expect_before("half", "all of it");
  for (const char* version : {"all of it!", "nothing", "half"}) replace(version);
  expect_before("nothing", "all of it!");
}

// Somebody else may have prepared the folder.
TEST_F(Files, AreNotWrittenThroughALink) {
  const TemporaryFolder elsewhere;
  elsewhere.Write("start-up", "mine");
  elsewhere.Write("KJV/Genesis.txt", "mine");
  elsewhere.Write("diary.not", "old");
  const auto link = [&](const char* to, const char* name) {
    fs::create_symlink(elsewhere.Path() + to, folder.Path() + name);
  };
  link("/start-up", "/codex.cfg");
  link("/KJV", "/KJV");
  link("/KJV", "/backup");
  link("/nothing", "/lost.not");
  for (const char* name : {"codex.cfg", "KJV\\Genesis.txt", "KJV\\new.txt", "lost.not"}) {
    EXPECT_EQ(ErrorOf([&] { files.OpenForAppending(name); }), 70) << name;
    EXPECT_EQ(ErrorOf([&] { files.Replace(name, "x", Lasting::kYes); }), 70) << name;
    EXPECT_EQ(ErrorOf([&] { files.SetAside(name); }), 70) << name;
  }
  EXPECT_EQ(ErrorOf([&] { files.Delete("KJV\\Genesis.txt"); }), 70);
  EXPECT_EQ(elsewhere.Read("start-up"), "mine");
  EXPECT_EQ(elsewhere.Read("KJV/Genesis.txt"), "mine");

  // A note may be kept elsewhere. What else is called `backup` is left alone.
  link("/diary.not", "/diary.not");
  files.SetAside("diary.not");
  files.OpenForAppending("diary.not").Write("new");
  files.Settle();
  EXPECT_TRUE(fs::is_symlink(folder.Path() + "/diary.not"));
  EXPECT_EQ(elsewhere.Read("diary.not"), "new");
  EXPECT_EQ(folder.Read("lectern-backup/diary.not"), "old");
  EXPECT_FALSE(fs::exists(elsewhere.Path() + "/KJV/diary.not"));
  files.DeleteKeepingBackup("diary.not");
  EXPECT_EQ(elsewhere.Read("diary.not"), "new");
}

// A prepared folder cannot have a file put anywhere by the next start.
TEST_F(Files, ArePutBackOnlyWithinTheFolder) {
  const TemporaryFolder elsewhere;
  elsewhere.Write("start-up", "mine");
  fs::create_symlink(elsewhere.Path(), folder.Path() + "/KJV");
  fs::create_symlink(elsewhere.Path() + "/start-up", folder.Path() + "/codex.cfg");
  const std::string waiting = "backup/lectern-rewriting/";
  folder.Write(waiting + "KJV/start-up", "theirs");
  folder.Write(waiting + "codex.cfg", "theirs");
  folder.Write(waiting + elsewhere.Path() + "/new", "theirs");
  folder.Write(waiting + "CONCORD.DAT", "whole");
  folder.Write("concord.dat", "half");
  EXPECT_EQ(files.Mend(), std::vector<std::string>{"CONCORD.DAT"});
  EXPECT_EQ(folder.Read("CONCORD.DAT"), "whole");
  EXPECT_EQ(folder.Read("concord.dat"), "(missing)");
  EXPECT_EQ(folder.Read("backup/lectern-half-written/concord.dat"), "half");
  EXPECT_EQ(elsewhere.Read("start-up"), "mine");
  EXPECT_FALSE(fs::exists(elsewhere.Path() + "/new"));
  EXPECT_EQ(files.Mend(), std::vector<std::string>{});
}

TEST_F(Files, KeepTheirPermissions) {
  folder.Write("mine.not", "old");
  const fs::path note = folder.Path() + "/mine.not";
  const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(note, own);
  files.SetAside("mine.not");
  files.OpenForAppending("mine.not").Write("new");
  EXPECT_EQ(fs::status(note).permissions(), own);
  files.ReplaceKeepingBackup("mine.not", "newer");
  EXPECT_EQ(fs::status(note).permissions(), own);
  EXPECT_EQ(folder.Read("mine.not"), "newer");
}

TEST(PathNames, FitPatternsAsFileListsDo) {
  for (const auto& [name, pattern] : std::vector<std::pair<const char*, const char*>>{
           {"Ruth and Naomi.BKM", "*.bkm"}, {".bkm", "*.bkm"}, {"cdx4.ico", "CDX?.ico"}, {"aXbXc", "*b*c"}}) {
    EXPECT_TRUE(FitsPattern(name, pattern)) << name;
  }
  EXPECT_FALSE(FitsPattern("x.bkm.txt", "*.bkm"));
  EXPECT_FALSE(FitsPattern("cdx.ico", "cdx?.ico"));
}

}  // namespace
}  // namespace lectern::files
