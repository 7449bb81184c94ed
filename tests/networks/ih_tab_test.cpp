// The in-house pages on their tab, and their files.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "config/ini_management.h"
#include "networks/networks_screen.h"
#include "networks/tdc_ih_form.h"

namespace corvalis::test {
namespace {

std::string Full(std::string text) {
  text.resize(2048, ' ');
  return text;
}

class IhTabTest : public NetworksTest<TdcIhForm> {
 protected:
  IhTabTest() {
    std::filesystem::create_directories(there + "/inner");
    WriteFile(there + "/one.txt", "ONE");
    WriteFile(there + "/two.txt", "TWO\r\nLINES");
    WriteFile(there + "/inner/deep.txt", "DEEP");
  }
  void OpenTab(const std::string& link = kLocal) {
    OpenScreen(link + "[Ih Pages]\nPage Count=3\nPage00=1;;" + there + ";one.txt\nPage01=2;;" +
               there + "/;two.txt;\nPage02=3;;" + folder + "/no such folder;none.txt;\n");
  }
  IhTab& Tab() { return form->ih; }
  void Go(Control& to) { form->window.MoveFocus(&to); }
  void GoToPage(int page) {
    Go(Tab().Combo1);
    Tab().Combo1.Choose(page);
    Go(Tab().RichTextBox1);
  }
  // The last characters of the index bytes and page digits of what has been sent.
  std::string SentPages() {
    std::string pages;
    for (const Bytes& frame : Written()) {
      if (frame.size() == 12 && frame[2] == 1) pages += static_cast<char>(frame[5]);
    }
    return pages;
  }

  const std::string there = folder + "/pages";
};

TEST_F(IhTabTest, APageIsChosenWhenItsListIsLeft) {
  OpenTab();
  EXPECT_EQ(Tab().Combo1.Entries(), (std::vector<std::string>{"Page00", "Page01", "Page02"}));
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
  EXPECT_EQ(Tab().File1.FileName(), "one.txt");
  Go(Tab().Combo1);
  Tab().Combo1.TypeKey('2');
  EXPECT_EQ(Tab().Combo1.Index(), 0);
  Tab().Combo1.Choose(1);
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
  Tab().Command8.Press();  // is about the page chosen
  EXPECT_EQ(ihData->Page(0), Full("ONE"));
  EXPECT_EQ(ihData->Page(1), Full("Default Page"));
  EXPECT_EQ(Tab().RichTextBox1.Text(), "Default Page");
  EXPECT_EQ(Tab().CountLabel.Caption(), "12 of 2048, not in its file");
  EXPECT_EQ(Tab().Text105.Text(), "two.txt");
  EXPECT_EQ(Tab().PathLabel.Caption(), there + "/two.txt");  // one stroke between them
  EXPECT_EQ(Tab().File1.FileName(), "two.txt");
  GoToPage(2);  // where there is no folder
  EXPECT_EQ(Tab().PathLabel.Caption(), folder + "/no such folder/none.txt");
  EXPECT_EQ(Tab().File1.FileName(), "");
  EXPECT_EQ(Tab().CountLabel.Caption(), "0 of 2048");  // blanks, as OPEN would make of no file
  EXPECT_EQ(Tab().Dir1.Path(), configData->Path());    // not that of the page before
  EXPECT_NE(Tab().Drive1.Index(), ListBox::kNone);
  // To look at the pages has changed none.
  EXPECT_EQ(ihData->Path(1), there + "/");
  EXPECT_EQ(ihData->Path(2), folder + "/no such folder");
  EXPECT_EQ(ihData->Drive(1), "");
  ihData->SetPath(1, there + "/inner/");
  GoToPage(1);
  EXPECT_EQ(Tab().File1.Entries(), std::vector<std::string>{"deep.txt"});
  EXPECT_EQ(ihData->Path(1), there + "/inner/");
  GoToPage(2);
  Tab().Text105.SelectAll();
  dialogs.beeps = 0;
  Tab().Text105.Type("ad");
  Tab().Text105.Select(1, 0);
  Tab().Text105.Type(";b");
  Tab().Text105.Paste(";c");
  EXPECT_EQ(dialogs.beeps, 2);
  Go(Tab().Text105);
  form->window.Close();
  EXPECT_EQ(ihData->FileName(2), "abcd");
}

TEST_F(IhTabTest, WhatIsTypedIsThePageAsFarAsItHasRoom) {
  OpenTab();
  std::string bytes;
  for (int i = 0; i < 2040; ++i) bytes += static_cast<char>(i);
  ihData->SetPage(1, "\n" + bytes + "\r\r\n\n  ");
  const std::string page = ihData->Page(1);
  GoToPage(1);
  GoToPage(0);
  EXPECT_EQ(ihData->Page(1), page);
  const std::string longer(2100, 'x');
  Tab().RichTextBox1.Edit(longer, 2100);
  EXPECT_EQ(Tab().CountLabel.Caption(), "2100 of 2048, not in its file");
  EXPECT_EQ(ihData->Page(0), std::string(2048, 'x'));
  Tab().Command1.Press();
  EXPECT_EQ(Tab().RichTextBox1.Text(), longer);
  GoToPage(1);
  GoToPage(0);
  EXPECT_EQ(Tab().RichTextBox1.Text().size(), 2048U);
}

TEST_F(IhTabTest, APageIsReadFromItsFileAndWrittenToIt) {
  OpenTab();
  Tab().RichTextBox1.Edit("", 0);
  Tab().Command15.Press();
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
  Tab().Text105.SelectAll();
  Go(Tab().Text105);
  EXPECT_EQ(Tab().CountLabel.Caption(), "3 of 2048");
  Tab().Text105.Edit("new.txt", 7);
  Go(Tab().RichTextBox1);
  EXPECT_EQ(Tab().CountLabel.Caption(), "3 of 2048, not in its file");
  EXPECT_FALSE(std::filesystem::exists(there + "/new.txt"));
  Tab().Command16.Press();
  EXPECT_EQ(Tab().CountLabel.Caption(), "3 of 2048");
  EXPECT_EQ(ReadFile(there + "/new.txt"), Full("ONE") + "\r\n");
  EXPECT_EQ(Tab().File1.FileName(), "new.txt");
  EXPECT_EQ(Tab().PathLabel.Caption(), there + "/new.txt  (written)");
  Tab().RichTextBox1.Edit("ELSE", 4);
  EXPECT_EQ(Tab().PathLabel.Caption(), there + "/new.txt");
  Go(Tab().Text105);
  Tab().Text105.Edit("inner", 5);  // a folder
  Tab().Command16.Press();
  Tab().Command15.Press();
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ELSE");
  // The station's own files are none of its pages', whatever leads there.
  WriteFile(there + "/station.rds", "[PI]\n");
  WriteFile(there + "/Language.ini", "[Main]\n");
  std::filesystem::create_symlink("station.rds", there + "/link.txt");
  std::filesystem::create_hard_link(there + "/station.rds", there + "/hard.txt");
  configData->SetPath(there);
  configData->SetFile("station.rds");
  const std::string before = ReadFile(ProgramFile());
  for (const char* name : {"station.rds", "hard.txt", "inner/../link.txt", "Language.ini",
                           "../program/corvalis.rds"}) {
    ihData->SetFileName(0, name);
    Tab().Command16.Press();
    EXPECT_EQ(Tab().PathLabel.Caption(), there + "/" + name + "  (not written: the station's own)");
  }
  EXPECT_EQ(ReadFile(there + "/station.rds") + ReadFile(there + "/Language.ini"), "[PI]\n[Main]\n");
  EXPECT_EQ(ReadFile(ProgramFile()), before);
  EXPECT_EQ(Boxes(), no_boxes);
  EXPECT_EQ(Written(), std::vector<Bytes>{});
}

TEST_F(IhTabTest, FilesAreFoundInTheLists) {
  OpenTab();
  Go(Tab().Dir1);
  Tab().Dir1.Open(Tab().Dir1.Here() + 1);
  EXPECT_EQ(ihData->Path(0), there + "/inner");
  EXPECT_EQ(Tab().File1.Entries(), std::vector<std::string>{"deep.txt"});
  Go(Tab().File1);
  Tab().File1.Choose(0);
  EXPECT_EQ(Tab().Text105.Text(), "one.txt");
  Tab().File1.Open(0);
  EXPECT_EQ(Tab().Text105.Text(), "deep.txt");
  EXPECT_EQ(ihData->FileName(0), "deep.txt");
  EXPECT_EQ(ihData->Drive(0), Tab().Drive1.Drive());
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");  // not loaded
  ihData->SetDrive(0, "");
  Go(Tab().Drive1);
  Tab().Drive1.Choose(0);
  EXPECT_EQ(ihData->Path(0), Tab().Drive1.Entry(0));
  EXPECT_EQ(ihData->Drive(0), Tab().Drive1.Entry(0));
  EXPECT_EQ(ihData->FileName(0), "deep.txt");
  // A page whose folder is not there is given the one that is looked at.
  GoToPage(2);
  Go(Tab().Dir1);
  Tab().Dir1.SetPath(there);
  Go(Tab().File1);
  Tab().File1.Choose(0);
  Tab().File1.Open(0);
  EXPECT_EQ(std::tuple(ihData->Path(2), ihData->FileName(2), ihData->Drive(2)),
            std::tuple(there, "one.txt", Tab().Drive1.Drive()));
  WriteFile(there + "/un;kept.txt", "");  // a name that the station's file can't hold
  Tab().File1.Refresh();
  Tab().File1.Choose(2);
  Tab().File1.Open(2);
  EXPECT_EQ(ihData->FileName(2), "one.txt");
}

TEST_F(IhTabTest, TheTickedPagesTravel) {
  OpenTab();
  for (int i = 0; i < IhTab::kBoxes; ++i) EXPECT_EQ(Tab().Check1[i].Enabled(), i < 3) << i;
  Tab().Command11.Press();
  Tab().Command13.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{});
  Tab().Check1[0].Press();
  Tab().Check1[2].Press();
  Tab().Command11.Press();
  EXPECT_EQ(SentPages(), "02");
  Tab().Command1.Press();
  EXPECT_EQ(SentPages(), "012");
  Tab().RichTextBox1.Edit("", 0);
  ihData->SetPage(1, "");
  Tab().Command13.Press();
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
  EXPECT_EQ(ihData->Page(1), Full(""));
  Tab().Command7.Press();
  EXPECT_EQ(ihData->Page(1), Full("TWO\r\nLINES"));
  // The first page has come when the second fails, and is shown.
  Tab().RichTextBox1.Edit("", 0);
  int frames = 0;
  port.Wrote = [&] {
    if (++frames == 18) port.line = nullptr;
  };
  Tab().Command7.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
  GoToPage(1);
  form->window.Close();
  form->Load();
  EXPECT_FALSE(Tab().Check1[0].Checked());
  EXPECT_EQ(Tab().Combo1.Index(), 0);
  EXPECT_EQ(Tab().RichTextBox1.Text(), "ONE");
}

TEST_F(IhTabTest, PagesLiveInTheirFiles) {
  std::filesystem::create_directory(there + "/folder.txt");
  WriteFile(there + "/long.txt", std::string(3000, 'L'));
  WriteFile(there + "/short.txt", std::string("A\r\n\xE4\0B", 6));
  Start(std::string(kSatellite) + "[Ih Pages]\nPage00=05;C:;" + there + ";long.txt;\nPage01=x;;" +
            there + "/;short.txt;\nPage02=7;;" + there + ";new.txt;\nPage03=8;;" + there +
            ";folder.txt;\nPage04=9;;pages;relative.txt;\n",
        {}, false);
  LoadLists();
  EXPECT_EQ(ihData->Page(0), std::string(2048, 'L'));
  EXPECT_EQ(ihData->Page(1), std::string("A\r\n\xE4\0B", 6) + std::string(2042, ' '));
  EXPECT_EQ(std::tuple(ihData->RotationTime(0), ihData->RotationTime(1)), std::tuple(5, 1));
  EXPECT_EQ(ihData->Page(2), std::string(2048, ' '));
  EXPECT_EQ(std::filesystem::file_size(there + "/new.txt"), 0U);  // made
  EXPECT_EQ(ihData->Page(13).substr(0, 13), "Default Page ");
  EXPECT_EQ(ihData->FileName(13), "Page13.txt");
  EXPECT_EQ(ihData->Path(13), configData->Path());

  for (const std::int16_t page : std::initializer_list<std::int16_t>{0, 1, 2})
    EXPECT_TRUE(ihData->WriteFile(page));
  EXPECT_EQ(ReadFile(there + "/long.txt"), std::string(2048, 'L') + "\r\n");
  EXPECT_EQ(ReadFile(there + "/short.txt").size(), 2050U);
  // Neither a folder nor a pipe is read, waited for or replaced; a page of theirs is blank.
  ihData->SetPage(3, "OF ANOTHER STATION");
  ihData->GetIni();
  EXPECT_EQ(ihData->Page(3), std::string(2048, ' '));
  ASSERT_EQ(mkfifo((there + "/pipe.txt").c_str(), 0600), 0);
  ihData->SetFileName(5, "pipe.txt");
  ihData->SetPath(5, there);
  for (const std::int16_t page : std::initializer_list<std::int16_t>{3, 4, 5}) {
    EXPECT_FALSE(ihData->WriteFile(page));
    EXPECT_FALSE(ihData->ReadFile(page));
  }
  ihData->SetIni();
  EXPECT_EQ(ReadIniKey("Ih Pages", "Page01"), "01;;" + there + "/;short.txt;");
}

TEST_F(IhTabTest, PagesTravelWhole) {
  Start(std::string(kLocal) + "[Ih Pages]\nPage02=7;;no such folder;none.txt;\n");
  Open();
  LoadLists();
  std::string page;
  for (int i = 0; i < 2048; ++i) page += static_cast<char>(i);
  ihData->SetPage(2, page + "beyond");
  port.written.clear();
  ihData->SetOneRds(2);
  const std::vector<Bytes> frames = Written();
  ASSERT_EQ(frames.size(), 17U);
  EXPECT_EQ(std::string(frames[16].begin() + 3, frames[16].end() - 2), "0020007");
  ihData->SetPage(2, "");
  ihData->GetOneRds(2);
  EXPECT_EQ(ihData->Page(2), page);
  EXPECT_EQ(Boxes(), no_boxes);
}

}  // namespace
}  // namespace corvalis::test
