// What the lines of the main menu say: of the link, and of what is not saved.

#include <gtest/gtest.h>

#include "app/main_form_fixture.h"

namespace corvalis::test {
namespace {

TEST_F(MainFormTest, LinkInWords) {
  const auto words = [this] { return form->LinkLabel.Caption(); };
  const std::string leads_on = ": CONNECTION, SEND ID";
  Run(kLocal);
  EXPECT_EQ(words(), "Local, COM 1, 9600,N,8,2: the Coder answered, no address sent" + leads_on);
  form->CtTpDiPiButton.Press();
  AddressSent = true;
  form->OpenedCtTpDiPi()->window.Close();
  EXPECT_EQ(words(), "Local, COM 1, 9600,N,8,2: the Coder answered, address sent");
  const std::string opens_anew = "; OPEN or SETUP opens it anew";
  const std::tuple<const char*, std::string, std::string> cases[] = {
      // Open on this file; and after New, on the default one.
      {"", "Satellite, COM 1, 9600,N,8,2: no address sent" + leads_on,
       "COM 1 is open for a one-way path" + opens_anew},
      {"Satellite=Off\nSerialPort=2\n",
       "Local, COM 2, 9600,N,8,2: the Coder answered, no address sent" + leads_on,
       "COM 2 is open, not COM 1" + opens_anew},
      {"Satellite=Off\nBaudrate=1200\n",
       "Local, COM 1, 1200,N,8,2: the Coder answered, no address sent" + leads_on,
       "COM 1 is open with 1200,N,8,2, not 9600,N,8,2" + opens_anew}};
  for (const auto& [file, after_open, after_new] : cases) {
    WriteFile(machine.program_folder + "/other.rds", std::string("[Serial Setup]\n") + file);
    OpenFile("other.rds");
    EXPECT_EQ(words(), after_open);
    form->NewButton.Press();
    EXPECT_EQ(words(), after_new);
  }
  port.answer = [](const Bytes&) { return Bytes{}; };
  OpenFile("corvalis.rds");
  EXPECT_EQ(words(), "Local, COM 1, 9600,N,8,2: the Coder did not answer, no address sent");
  Run(kModem);
  EXPECT_EQ(words(), "Modem, COM 1, 9600,N,8,2: no address sent");
  configData->SetModemHookOn(true);  // a call
  form->window.SetEnabled(false);
  form->window.SetEnabled(true);
  EXPECT_EQ(words(), "Modem, COM 1, 9600,N,8,2: no address sent" + leads_on);
  port.missing[1] = "no such port";
  OpenFile("corvalis.rds");
  EXPECT_EQ(words(), "Modem: COM 1 is not open");
}

TEST_F(MainFormTest, OnTheFirstStartTheLinkSaysThatItIsOneWayAndHowToChooseAnother) {
  form = std::make_unique<MainForm>();
  form->Load();
  const std::string leads_on = ": CONNECTION, SEND ID";
  const std::string hint = "; one way, unless SETUP says Local or Modem";
  EXPECT_EQ(form->LinkLabel.Caption(),
            "Satellite, COM 1, 9600,N,8,2: no address sent" + leads_on + hint);
  form->SaveButton.Press();
  EXPECT_EQ(form->LinkLabel.Caption(), "Satellite, COM 1, 9600,N,8,2: no address sent" + leads_on);
}

TEST_F(MainFormTest, WhatIsNotSavedIsSaid) {
  Run(kLocal);
  WriteFile(machine.program_folder + "/other.rds", "[PI]\nCountry=007\nProgram Number=+\n");
  const std::string path = machine.program_folder + "/corvalis.rds";
  const auto told = [this](const std::string& of) {
    return form->PathLabel.Caption().substr(of.size());
  };
  // What a person does on a screen, and undoes.
  const auto change = [this](std::uint8_t country, const std::string& name) {
    form->CtTpDiPiButton.Press();
    configData->SetCountry(country);
    psnPageData->SetData(0, 0, name);
    form->OpenedCtTpDiPi()->window.Close();
  };
  const auto country = static_cast<std::uint8_t>(configData->Country());
  const std::string name = psnPageData->Data(0, 0);
  EXPECT_EQ(told(path), "");
  change(country, "LATE");
  EXPECT_EQ(told(path), "  (changed since the start)");
  change(country, name);
  EXPECT_EQ(told(path), "");
  change(3, name);
  form->SaveButton.Press();
  EXPECT_EQ(told(path), "  (saved 12:00:00)");
  change(4, name);
  EXPECT_EQ(told(path), "  (saved 12:00:00, changed since the last SAVE)");
  EXPECT_EQ(profiles.Read(path, "PI", "Country"), "3");  // to look has written nothing
  port.missing[1] = "no such port";
  OpenFile("other.rds");
  EXPECT_EQ(told(machine.program_folder + "/other.rds"), "");
  change(5, name);
  EXPECT_EQ(told(machine.program_folder + "/other.rds"), "  (changed since the last OPEN)");
  form->NewButton.Press();
  change(6, name);
  EXPECT_EQ(told(path), "  (saved 12:00:00, changed since the last NEW)");
  configData->SetPath(folder + "/not there");
  dialogs.boxes.clear();
  form->SaveButton.Press();
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->window.Enabled());
  EXPECT_EQ(form->PathLabel.Caption(),
            folder + "/not there/corvalis.rds  (changed since the last NEW)");
  // A read from the Coder, while its screen stands.
  configData->SetPath(machine.program_folder);
  form->NewButton.Press();
  Window screen(this, "Screen");
  RunRead(screen, [] { configData->SetCountry(9); });
  EXPECT_EQ(told(path), "  (saved 12:00:00, changed since the last NEW)");
}

}  // namespace
}  // namespace corvalis::test
