// Nothing that a person made is lost, wherever the program is stopped while it writes.
#include <csignal>
#include <gtest/gtest.h>

#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "tests/kit/small_world.h"
#include "tests/kit/stopping.h"
#include "tests/kit/temporary_folder.h"

namespace lectern {
namespace {

const Steps kSearch = {"click Form1.cc3", "click Form1.op1", "type Form1.txts \"river\"",
                       "click Form1.Command22", "run"};
const Steps kPaint = {"click Form1.imgp(1)",
                      "click Form1.Command32",
                      "click Form4.picpbs(2)",
                      "mousedown Form4.clrboxs(20) 1 0 5 5",
                      "mousedown Form4.picbox 1 0 2 2",
                      "mousedown Form4.clrboxs(3) 2 0 1 1"};

// Everything that is written, by the feature that writes it.
const Task kTasks[] = {
    {.name = "Reading",
     .way = {"start"},
     .acts = {"click Form1.lst \"Exodus\"", "scroll Form1.scr 2", "click Form1.optn", "click Form1.aaa3"},
     .ignores_failures = true},
    {.name = "Bookmarks",
     .way = {"click Form1.xb"},
     .acts = {"answer \"second\"", "click Form1.Command10", "click Form1.lst \"Exodus\"",
              "click Form1.File1 \"first.bkm\"", "click Form1.Command6", "answer \"first\"",
              "click Form1.Command10", "click Form1.File1 \"second.bkm\"", "click Form1.Command11"},
     .ignores_failures = true},
    {.name = "Notes",
     .way = {"click Form1.cc0", "click Form3.File1 \"first.not\""},
     .acts = {"type Form3.txthelp \"new text\"", "click Form3.f3", "answer \"second\"",
              "click Form3.Command2", "type Form3.txthelp \"more\"", "answer yes", "click Form3.f8",
              "click Form1.cc0", "answer \"first\"", "click Form3.Command2", "answer yes", "click Form3.f4"}},
    {.name = "NoteWithVersions",
     .way = {"click Form1.cc0", "click Form3.File1 \"first.not\"", "type Form3.txthelp \"a longer text\"",
             "click Form3.f3", "type Form3.txthelp \"a text that is longer\"", "click Form3.f3",
             "type Form3.txthelp \"a text that is longer than the others\"", "click Form3.f3"},
     .acts = {"type Form3.txthelp \"the longest text of all, which grows and grows\"", "click Form3.f3",
              "type Form3.txthelp \"short\"", "click Form3.f3"}},
    {.name = "NoteAtTheCloseBox",
     .way = {"click Form1.cc0", "click Form3.File1 \"first.not\"", "type Form3.txthelp \"new\"",
             "answer yes"},
     .acts = {"close Form3"}},
    {.name = "PrintPage",
     .way = {"click Form1.xb"},
     .acts = {"click Form1.Command30"},
     .ignores_failures = true},
    {.name = "ConcordanceAdd", .way = kSearch, .acts = {"click Form1.cmdadd", "click Form1.cmdadd"}},
    {.name = "ConcordanceDelete",
     .way = {"click Form1.cc1", "click Form1.lstc \"RIVER\""},
     .acts = {"click Form1.Command21", "click Form1.lstc \"ZION\"", "click Form1.Command21"}},
    {.name = "ConcordanceBuild",
     .way = {"start"},
     .acts = {"click! Form1.Command27", "run 2000"},
     .ignores_failures = true},
    {.name = "ConcordanceCut", .way = {"start"}, .acts = {"click! Form1.Command18"}},
    {.name = "OnePass",
     .way = {"start"},
     .acts = {"click! Form1.Command13"},
     .all_books = true,
     .ignores_failures = true},
    {.name = "Settings",
     .way = {"click Form1.oo11", "choose Form1.Combo2 \"18\""},
     .acts = {"click Form1.Command36", "choose Form1.Combo3 \"Italic\"", "click Form1.Command36"}},
    {.name = "ExitByButton",
     .way = {"choose Form1.Combo2 \"18\""},
     .acts = {"click Form1.Command1"},
     .ignores_failures = true},
    {.name = "ExitByMenu", .way = {"start"}, .acts = {"click Form1.xx"}, .ignores_failures = true},
    {.name = "CatalogueAdd",
     .way = {"type! Form1.selfile(0) \"hill\"", "type! Form1.selfile(1) \"Genesis 1: 3\""},
     .acts = {"click! Form1.Command49"}},
    {.name = "CatalogueMove",
     .way = {"click Form1.imgp(1)"},
     .acts = {"click! Form1.SSCommand1", "click! Form1.SSCommand2"}},
    {.name = "CatalogueRemove",
     .way = {"click Form1.imgp(1)"},
     .acts = {"click! Form1.Command45", "click! Form1.Command40", "click! Form1.Command47"}},
    {.name = "CatalogueConvert", .way = {"start"}, .acts = {"call ConvertPicsDat"}},
    {.name = "ChapterCounts", .way = {"start"}, .acts = {"click! Form1.Command12"}},
    {.name = "BookConverter",
     .way =
         {"type! Form1.RTB1 \"Codex, King James Version\\r\\n\\r\\nJoel\\r\\n[1]The word that came\\r\\n\""},
     .acts = {"click! Form1.Command33"}},
    {.name = "PaintSave",
     .way = kPaint,
     .acts = {"answer \"tent\"", "answer yes", "click Form4.Command2", "answer \"fresh\"",
              "click Form4.Command2"}},
    {.name = "Palette",
     .way = kPaint,
     .acts = {"click Form4.Command3", "mousedown Form4.clrboxs(5) 2 0 1 1", "click Form4.Command3"}},
};

class Stopped : public testing::TestWithParam<Task> {};

// The numbers of stops are in the report that --gtest_output=xml writes.
TEST_P(Stopped, ByAKill) { RecordProperty("stops", StopEverywhere(GetParam(), Stop::kKill)); }
TEST_P(Stopped, ByAnOperationThatFails) {
  RecordProperty("stops", StopEverywhere(GetParam(), Stop::kFullOnce));
}
TEST_P(Stopped, ByADiskThatIsFull) { RecordProperty("stops", StopEverywhere(GetParam(), Stop::kFullOnward)); }
TEST_P(Stopped, ByAPowerCut) { RecordProperty("stops", StopEverywhere(GetParam(), Stop::kPowerCut)); }

INSTANTIATE_TEST_SUITE_P(Tasks, Stopped, testing::ValuesIn(kTasks),
                         [](const auto& test) { return std::string(test.param.name); });

const Steps kFull = {"run-time error 61 \"Disk full\""};

// A text that is written in one go, and one that goes to the disk in parts before it is closed.
TEST(FullDisk, LeavesTheNoteInTheEditorAndItsLastVersionInTheBackup) {
  for (const std::size_t size : {std::size_t{20000}, std::size_t{700000}}) {
    const TemporaryFolder folder;
    folder.Write("mine.not", "old text");
    const int status = InChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      Session session(folder.Path());
      session.Do("click Form1.cc0", "click Form3.File1 \"mine.not\"");
      auto& text = session.Get<forms::RichTextBox>("Form3.txthelp");
      const auto& altered = session.Get<forms::Label>("Form3.lblc");
      const std::string written(size, 'x');
      text.PersonTypes(written);
      LimitFiles(10000);
      for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_EQ(session.Do("click Form3.f3"), kFull);
        EXPECT_EQ(text.Text, written);
        EXPECT_EQ(altered.Caption, "c");
        EXPECT_EQ(folder.Read("backup/lectern-rewriting/mine.not"), "old text");
      }
      LimitFiles(RLIM_INFINITY);
      EXPECT_EQ(session.Do("click Form3.f3"), Steps{});
      EXPECT_EQ(folder.Read("mine.not"), written + "\r\n");
      EXPECT_EQ(altered.Caption, "");
    });
    EXPECT_EQ(status, 0) << size;
  }
}

// A deletion has no room for its work file; an add has room for so many bytes.
TEST(FullDisk, LosesNoWordOfTheConcordance) {
  const std::string record = "\"river\",\"Genesis 1 1\"\r\n";
  for (const std::size_t room : {record.size(), std::size_t{0}}) {
    const TemporaryFolder folder;
    LaySmallWorld(folder.Path());
    const std::string words = folder.Read("CONCORD.DAT");
    const int status = InChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      Session session(folder.Path());
      session.Do(kSearch);
      LimitFiles(words.size() + room);
      EXPECT_TRUE(session.Do("click Form1.cmdadd").front().starts_with("message \"An error (61 )"));
      EXPECT_EQ(folder.Read("CONCORD.DAT"), words + (room == 0 ? "" : record));
      session.Do("click Form1.cc1", "click Form1.lstc \"RIVER\"");
      LimitFiles(10);
      EXPECT_EQ(session.Do("click Form1.Command21"), (Steps{kFull[0], "end"}));
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(folder.Read("CONCORD.DAT").starts_with(words));
  }
}

TEST(Unreadable, ANoteIsReportedABookmarkEndsTheProgram) {
  const TemporaryFolder folder;
  LaySmallWorld(folder.Path());
  Session session(folder.Path());
  session.Do("click Form1.cc0", "type Form3.txthelp \"other\"");
  session.driver.Files().disk.before = [](files::Operation operation, const std::string& path) {
    if (operation == files::Operation::kRead && path.find("/first.") != std::string::npos) {
      throw base::RunTimeError(base::ErrorNumber::kPermissionDenied);
    }
  };
  const std::string denied = "run-time error 70 \"Permission denied\"";
  EXPECT_EQ(session.Do("click Form3.File1 \"first.not\"", "get Form3.txthelp.Text", "get Form3.lblc.Caption"),
            (Steps{denied, "Form3.txthelp.Text = \"other\"", "Form3.lblc.Caption = \"c\""}));
  EXPECT_EQ(session.Do("click Form1.xb", "click Form1.File1 \"first.bkm\""), (Steps{denied, "end"}));
}

// A painting stands in the catalogue before its picture is there; the person saves it again over what is
// left.
TEST(APainting, IsSavedOnceAfterASaveThatWasStopped) {
  const std::string record = "\"fresh\",\"Genesis 1: 2\",\"PICTURES BY: A. Painter\"\r\n";
  Steps paint = kPaint;
  paint.insert(paint.end(), {"answer \"fresh\"", "click Form4.Command2"});
  bool stopped = true;
  for (int n = 1; stopped; ++n) {
    const TemporaryFolder around;
    const std::string folder = around.Path() + "/data";
    LaySmallWorld(folder);
    const std::string catalogue = ReadFile(folder + "/pics2.dat");
    stopped = KillAt(folder, paint, n);
    const bool recorded = ReadFile(folder + "/pics2.dat") != catalogue;
    EXPECT_TRUE(recorded || ReadFile(folder + "/pics/fresh.JPG") == "(missing)") << n;
    Session session(folder);
    session.Do(kPaint);
    if (recorded) session.Do("answer \"fresh\"", "answer yes", "click Form4.Command2");
    if (!recorded) session.Do("answer \"fresh\"", "click Form4.Command2");
    EXPECT_EQ(ReadFile(folder + "/pics2.dat"), catalogue + record) << n;
    EXPECT_TRUE(ReadFile(folder + "/pics/fresh.JPG").starts_with("BM")) << n;
    EXPECT_EQ(ReadFile(folder + "/lectern-saving.tmp"), "(missing)") << n;
  }
}

}  // namespace
}  // namespace lectern
