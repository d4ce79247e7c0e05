#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "TestFiles.h"
#include "config/AppPath.h"
#include "config/SettingsFile.h"
#include "platform/FileStore.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;
const std::string AppFolder = "/home/op/tarnix/";

SettingsResult Parse(const std::string& text, Settings& s) { return ParseSettings(text, "tarnix125.ini", s, AppFolder); }

// A written section: its header up to the next header.
std::string SectionOf(const std::string& text, const std::string& header) {
  std::size_t start = text.find(header + "\r\n");
  if (start == std::string::npos) return "";
  std::size_t end = text.find("\r\n[", start + header.size());
  return text.substr(start, end == std::string::npos ? std::string::npos : end + 2 - start);
}

void ExpectFound(const std::string& text, std::initializer_list<std::string> parts) {
  for (const std::string& part : parts) EXPECT_NE(text.find(part), std::string::npos) << part;
}

// Each line stands whole, CR LF before and after, in the text.
void ExpectLines(const std::string& text, std::initializer_list<std::string> lines) {
  for (const std::string& line : lines) ExpectFound(text, {"\r\n" + line + "\r\n"});
}

std::string Shipped() { return ReadFile(ShippedDataDir() + "/tarnix125.ini"); }

TEST(SettingsFile, SplitKeyValueTrimsAndKeepsLaterEqualSigns) {
  std::string key = "old", value = "kept";
  for (auto [line, split, after] : {std::tuple{"no equal sign", false, "old|kept"},
                                    {"Radio1ComActivated = False", true, "Radio1ComActivated|False"},
                                    {"  ExchangeGeneric =  5NN = 599 ", true, "ExchangeGeneric|5NN = 599"}}) {
    EXPECT_EQ(SplitKeyValue(line, key, value), split) << line;
    EXPECT_EQ(key + "|" + value, after);
  }
}

TEST(SettingsFile, RadioInformationKeepsBothFalseForms) {
  Settings s;
  s.Radio1ComActivated = s.CWActivated = true;
  ASSERT_TRUE(Parse(CrLfLines({"[Radio Information]", "Radio1ComActivated = False", "Radio2ComActivated=True",
                               "Radio(2).DTRHigh=True", "[Preferences]", "CWActivated=true"}), s).Ok);
  EXPECT_TRUE(!s.Radio1ComActivated && s.Radio2ComActivated && !s.CWActivated);  // only the exact word True
  std::string text = SettingsText(s);
  EXPECT_EQ(SectionOf(text, "[Radio Information]"),
            CrLfLines({"[Radio Information]", "Radio1ComActivated = False", "Radio2ComActivated=True",
                       "Radio1ComPollInterval=0", "Radio2ComPollInterval=0", "RadioSwapDelayMsec=0", "",
                       "Radio1ComPort=", "Radio2ComPort=", "Radio(1).Name=", "Radio(1).Address=", "Radio(1).BaudRate=0",
                       "Radio(1).WordLen=0", "Radio(1).Parity=", "Radio(1).StopBits=0", "Radio(1).DTRHigh = False",
                       "Radio(1).RTSHigh = False", "", "Radio(2).Name=", "Radio(2).Address=", "Radio(2).BaudRate=0",
                       "Radio(2).WordLen=0", "Radio(2).Parity=", "Radio(2).StopBits=0", "Radio(2).DTRHigh=True",
                       "Radio(2).RTSHigh = False", ""}));
  ExpectLines(text, {"RadioDefaultSettings.DTRHigh=False"});
  EXPECT_EQ(text.find("RadioDefaultSettings.DTRHigh = False"), std::string::npos);
}

TEST(SettingsFile, NumbersTakeTheirPrefixRoundedAndWordsTheirExactForm) {
  Settings s;
  s.YourCall = "K1ABC";
  s.RepeatIntervalCW = 2500;
  s.UseDTRtoKey[2] = DtrPTT;
  ASSERT_TRUE(Parse(CrLfLines({"[Preferences]", "Radio1Delay=7 steps", "Radio2Delay=abc", "DualCQsPlayNumber=2.5",
                               "DualCQsRepeatInterval=3.5", "K3MsgLengthAdjustment=-12", "StationLatitude=39.5N",
                               "StationLongitude=-122.25", "RepeatIntervalSSB=3000", "Weight=2.5",
                               "UseDTRtoKey(1)=DVKMicSwitch", "UseDTRtoKey(2)=cw", "IsGMTFlag=true",
                               "[DVK Settings]", "DVKCallExchMode=MixedMode"}), s).Ok);
  EXPECT_EQ(std::tuple(s.Radio1Delay, s.Radio2Delay, s.DualCQsPlayNumber, s.DualCQsRepeatInterval),
            std::tuple(7, 0, 2, 4));
  // RepeatIntervalCW was preset before reading; YourCall's key is absent.
  EXPECT_EQ(std::tuple(s.K3MsgLengthAdjustment, s.RepeatIntervalCW, s.RepeatIntervalSSB, s.YourCall),
            std::tuple(-12, 1000, 3000, "K1ABC"));
  EXPECT_EQ(std::tuple(s.UseDTRtoKey[1], s.UseDTRtoKey[2], s.DVKCallExchMode),
            std::tuple(DtrDVKMicSwitch, DtrPTT, DvkMixedMode));  // an unknown word leaves UseDTRtoKey(2)
  ExpectLines(SettingsText(s), {"StationLatitude=39.5", "StationLongitude=-122.25", "Weight=2.5",
                                "K3MsgLengthAdjustment=-12", "RepeatIntervalCW=1000", "UseDTRtoKey(1)=DVKMicSwitch",
                                "UseDTRtoKey(2)=PTT", "IsGMTFlag=False", "DVKCallExchMode=MixedMode"});
  ASSERT_TRUE(Parse(CrLfLines({"[Preferences]", "IsGMTFlag=True", "[DVK Settings]", "DVKCallExchMode=Fast"}), s).Ok);
  EXPECT_EQ(s.DVKCallExchMode, DvkAlwaysNormal);
  ExpectLines(SettingsText(s), {"IsGMTFlag=True"});
  auto file = [](std::string weight, std::string method) {
    return CrLfLines({"[Preferences]", "Weight=" + weight, "TimingMethod=" + method});
  };
  struct Row { std::string text; float weight; const char* method; };
  const Row rows[] = {{file("4.5", "VBTimer"), 4.5f, "VBTimer"}, {file("2.5", "Math"), 2.5f, "Math"},
                      {file("4.51", "queryperf"), 3.0f, "Winmm"}, {file("2.49", ""), 3.0f, "Winmm"},
                      {file("heavy", "QueryPerf"), 3.0f, "QueryPerf"}, {"", 3.0f, "Winmm"}};
  for (const Row& r : rows) {
    Settings t;
    ASSERT_TRUE(Parse(r.text, t).Ok);
    EXPECT_EQ(t.Weight, r.weight) << r.text;
    EXPECT_EQ(t.TimingMethod, r.method) << r.text;
  }
}

// Rows by place. A window row without a name, or without name and state, is
// written with its blanks in front, which the reader trims away: the numbers
// must stay numbers when read back. A short line whose Top is a word is still
// read from the left.
TEST(SettingsFile, PositionalSectionsTakeRowsByPlaceAndReadBackAsWritten) {
  Settings s;
  ASSERT_TRUE(Parse(CrLfLines({"[CW Macros - 03]", "[RADIO2][PLAY3]CQ", "[RAD junk", "CQ TEST", "", "4", "5", "6",
                               "7", "8", "9", "@ 5NN", "CQ TEST", "  @ WKD B4  ", "[CW Macros Display Forms - 13]",
                               "CQ", "[Window Information - 07]", "LOGFORM OPEN 100 200 3000 4000",
                               "ABCDEFGHIJKLMNOPQRSTUVWXYZ NORMALX -1 2 3.5 4 twips", "ONLYNAME",
                               "[Window Information - 05]", "LOGFORM OPEN 100 200 3000", "VIEWMULT OPEN 5 6",
                               "1 2 3 4 5"}), s).Ok);
  const auto& m = s.CWMacro[3];  // the empty line is no row
  EXPECT_EQ(m[1] + "|" + m[2] + "|" + m[3] + "|" + m[4] + "|" + m[9],
            "[RADIO2][PLAY3]CQ|[RAD junk|[RADIO0][PLAY1]CQ TEST|[RADIO0][PLAY1]4|[RADIO0][PLAY1]9");
  EXPECT_EQ(m[10] + "|" + m[11] + "|" + m[12] + "|" + s.CWMacroDisplay[13][1], "@ 5NN|CQ TEST|@ WKD B4|CQ");
  using Rows = std::vector<WindowRow>;
  EXPECT_EQ(Rows(&s.WindowInfo[7][1], &s.WindowInfo[7][4]),
            (Rows{{"LOGFORM", "OPEN", 200, 100, 3000, 4000}, {"ABCDEFGHIJKLMNOPQRST", "NORMAL", 2, -1, 4, 4},
                  {"ONLYNAME", "", 0, 0, 0, 0}}));
  EXPECT_EQ(Rows(&s.WindowInfo[5][1], &s.WindowInfo[5][4]),
            (Rows{{"LOGFORM", "OPEN", 200, 100, 3000, 0}, {"VIEWMULT", "OPEN", 6, 5, 0, 0}, {"", "1", 3, 2, 4, 5}}));
  s.WindowInfo[2][1] = {"", "", 10, 20, 30, 40};
  s.WindowInfo[2][2] = {"", "MIN", -5, 6, 7, 8};
  s.WindowInfo[2][3] = {"", "7", 1, 2, 3, 4};
  s.WindowInfo[2][4] = {"AUDIO", "", 9, 10, 11, 12};
  std::string written = SettingsText(s);
  ExpectFound(written, {CrLfLines({"[Window Information - 07]", "LOGFORM OPEN 100 200 3000 4000",
                                   "ABCDEFGHIJKLMNOPQRST NORMAL -1 2 4 4"}),
                        "\r\n[RADIO0][PLAY1]9\r\n@ 5NN\r\nCQ TEST\r\n@ WKD B4\r\n\r\n[CW Macros - 04]\r\n",
                        CrLfLines({"[Window Information - 02]", "  20 10 30 40", " MIN 6 -5 7 8", " 7 2 1 3 4",
                                   "AUDIO  10 9 11 12"})});
  Settings again;
  ASSERT_TRUE(Parse(written, again).Ok);
  EXPECT_EQ(again.WindowInfo, s.WindowInfo);
}

TEST(SettingsFile, RadioModelRowsAdvanceOnRtsHigh) {
  std::vector<std::string> lines = {"[Radio User Settings]"};
  for (int g = 1; g <= 15; ++g)
    lines.insert(lines.end(), {"RadioUserSettings.Name=M" + std::to_string(g),
                               "RadioUserSettings.BaudRate=" + std::to_string(1200 * g),
                               "RadioUserSettings.RTSHigh=False"});
  // A line without "=" handles the key before it again: here RTSHigh, which
  // moves on one more row.
  lines.insert(lines.end(), {"[Radio Default Settings]", "RadioDefaultSettings.Name=A",
                             "RadioDefaultSettings.RTSHigh=True", "stray words", "RadioDefaultSettings.Name=B",
                             "RadioUserSettings.Name=X"});
  Settings s;
  ASSERT_TRUE(Parse(CrLfLines(lines), s).Ok);
  const auto &u = s.RadioUserSettings, &d = s.RadioDefaultSettings;
  EXPECT_EQ(u[13].Name + "|" + u[14].Name + " " + std::to_string(u[14].BaudRate), "M13|M15 18000");
  EXPECT_EQ(d[1].Name + "|" + d[2].Name + "|" + d[3].Name, "A||B");
  EXPECT_TRUE(d[1].RTSHigh && d[2].RTSHigh);
}

TEST(SettingsFile, KeysBySectionInAnyOrderAndOldHeaders) {
  Settings s;
  ASSERT_TRUE(Parse(CrLfLines({"YourCall=BEFOREANYHEADER", "[Preferences]", "SCPSelection=DX", "NoSuchKey=1",
                               "YourCall=W1AW", "[User Exchange - GENERIC]", "ExchangeGeneric=5NN = 599",
                               "[User Exchange - CWO]", "ExchangeGeneric=wrong section", "ExchangeCWOName=BOB",
                               "[preferences]", "YourCall=CASE MATTERS", "[Window Coordinates - CQP, SS, WPX]",
                               "1 2 3 4", "[User Information]", "YourCall=OLD", "[File Information]",
                               "OpenFilePath=", "RecentFile4=/logs/b.TNX"}), s).Ok);
  EXPECT_EQ(s.ExchangeGeneric + "|" + s.ExchangeCWOName + "|" + s.SCPSelection + "|" + s.YourCall + "|" +
                s.OpenFilePath + "|" + s.RecentFile[4],
            "5NN = 599|BOB|DX|W1AW|" + AppFolder + "|/logs/b.TNX");
  ASSERT_TRUE(Parse(CrLfLines({"[File Information]", "OpenFilePath=/logs/"}), s).Ok);
  EXPECT_EQ(s.OpenFilePath, "/logs/");
}

TEST(SettingsFile, ProfilesGetNamesAndTheCurrentIndex) {
  Settings s;
  std::string text = CrLfLines({"[User Profile 1]", "CurrentUserProfileName=Club", "",
                                "UserProfile.ProfileName=Custom Profile 1", "UserProfile.Callsign=ABCDEFGHIJKLMNO",
                                "[User Profile 3]", "UserProfile.ProfileName=Custom Profile 3", "[User Profile 4]",
                                "UserProfile.ProfileName=Club"});
  SettingsResult r = Parse(text, s);
  EXPECT_TRUE(r.Ok && r.ProfilesRenamed);
  // The callsign keeps 12 characters.
  EXPECT_EQ(s.UserProfile[2].ProfileName + "|" + s.UserProfile[1].Callsign, "Custom Profile 2|ABCDEFGHIJKL");
  EXPECT_EQ(s.CurrentUserProfile, 4);
  EXPECT_FALSE(Parse(text, s).ProfilesRenamed);  // all named now
  Settings two;
  Parse(CrLfLines({"[User Profile 3]", "UserProfile.ProfileName=Custom Profile 1", "[User Profile 4]",
                   "UserProfile.ProfileName=X"}), two);
  EXPECT_EQ(two.UserProfile[1].ProfileName + "|" + two.UserProfile[2].ProfileName, "Custom Profile 2|Custom Profile 3");
  EXPECT_EQ(two.CurrentUserProfile, 0);  // no profile named as the current one
  EXPECT_NE(SettingsText(two).find("[User Profile 1]\r\nCurrentUserProfileName=Custom Profile 2\r\n\r\n"),
            std::string::npos);
}

TEST(SettingsFile, BoundsOfTheFormatAreErrorsNotCrashes) {
  std::string twelve;
  for (int i = 1; i <= 12; ++i) twelve += "M" + std::to_string(i) + "\r\n";
  // Each case follows two lines of preferences, so its lines count from 3.
  const std::pair<std::string, std::string> rows[] = {
      {"[CW Macros - 01]\r\n" + twelve + "M13\r\n", "line 16: CW message row 13 is beyond the 12 of a set"},
      {"[CW Macros Display Forms - 02]\r\n" + twelve, "line 13: CW display row 10 is beyond the 9 of a set"},
      {"\r\n[Window Information - 13]\r\n" + twelve, "line 13: window row 9 is beyond the 8 of a set"},
      {"[CW Macros - 14]\r\n", "line 3: \"[CW Macros - 14]\" names set 14, but the sets are 01 to 13"},
      {"[Window Information - 00]\r\n", "line 3: \"[Window Information - 00]\" names set 00, but the sets are 01 to 13"},
      {"[User Profile 5]\r\nCurrentUserProfileName=ok\r\nOther=ignored\r\nUserProfile.Callsign=K1ABC\r\n",
       "line 6: \"UserProfile.Callsign\" in [User Profile 5], but only profiles 1 to 4 are kept"},
      {"[Radio Default Settings]\r\nRadioDefaultSettings.BaudRate=32767\r\nRadioDefaultSettings.BaudRate=38400\r\n",
       "line 5: RadioDefaultSettings.BaudRate=38400 is outside the 16-bit range -32768 to 32767"},
      {"[Window Information - 01]\r\nLOGFORM OPEN 0 40000 1 1\r\n",
       "line 4: window Left=40000 is outside the 16-bit range -32768 to 32767"}};
  for (const auto& [text, error] : rows) {
    Settings s;
    s.YourCall = "UNCHANGED";
    SettingsResult result = Parse("[Preferences]\r\nYourCall=CHANGED\r\n" + text, s);
    EXPECT_FALSE(result.Ok);
    EXPECT_EQ(result.Error, "tarnix125.ini " + error);
    EXPECT_EQ(s.YourCall, "UNCHANGED");  // nothing taken from a refused file
  }
}

TEST(SettingsFile, ShippedFileRoundTripsEveryKeyAndIsAFirstRunSetUp) {
  std::string shipped = Shipped();
  ASSERT_FALSE(shipped.empty());
  EXPECT_EQ(std::count(shipped.begin(), shipped.end(), '\n'), std::count(shipped.begin(), shipped.end(), '\r'));
  Settings s;
  SettingsResult r = Parse(shipped, s);
  ASSERT_TRUE(r.Ok) << r.Error;
  EXPECT_FALSE(r.ProfilesRenamed);
  std::string expected = shipped;
  expected.replace(expected.find("OpenFilePath=\r\n"), 15, "OpenFilePath=" + AppFolder + "\r\n");
  EXPECT_EQ(SettingsText(s), expected);
  const char* models[] = {"Elecraft K3", "Elecraft Generic", "Icom 756 Pro-A", "Icom 756 Pro-B", "Icom 756 Pro 2-A",
                          "Icom 756 Pro 2-B", "Icom Generic-A", "Icom Generic-B", "Kenwood TS-570", "Kenwood Generic",
                          "Yaesu FT-990", "Yaesu FT-1000", "Yaesu Generic", "Yaesu FT-817"};
  for (int i = 1; i <= RadioModelRows; ++i) {
    EXPECT_EQ(s.RadioDefaultSettings[i].Name, models[i - 1]);
    EXPECT_EQ(s.RadioUserSettings[i], s.RadioDefaultSettings[i]);
  }
  EXPECT_EQ(s.Radio[1].Name + s.Radio[2].Name + s.Radio1ComPort + "|" + s.YourCall + "|" +
                s.RadioDefaultSettings[5].Address, "[none][none][none]||64");
  EXPECT_FALSE(s.CWActivated || s.Radio1ComActivated || s.Radio2ComActivated);
  for (int set = 1; set <= SettingsContestSets; ++set) {
    for (int row = 1; row <= CWMacroRows; ++row) {
      EXPECT_FALSE(s.CWMacro[set][row].empty());  // an empty line would shift the rows below
      EXPECT_EQ(s.CWMacro[set][row].starts_with("[RADIO0][PLAY1]"), row < 10);
    }
    EXPECT_EQ(s.WindowInfo[set][8], (WindowRow{"PARTIAL", "CLOSED", 6000, 2000, 3000, 5900}));
  }
  EXPECT_EQ(std::to_string(s.CurrentUserProfile) + "|" + s.UserProfile[4].ProfileName, "1|Profile 4");
  // Turn every False into True, raise every whole number by one and fill
  // every empty value: a key the reader dropped would come back unchanged.
  std::string mutated;
  std::istringstream in(expected);
  for (std::string line; std::getline(in, line);) {
    line.pop_back();  // CR
    std::smatch m;
    if (std::regex_match(line, m, std::regex("(.+?)( = |=)False")))
      line = m[1].str() + "=True";
    else if (std::regex_match(line, m, std::regex("([^=]+)=(-?\\d+)")))
      line = m[1].str() + "=" + std::to_string(std::stoi(m[2].str()) + 1);
    else if (std::regex_match(line, m, std::regex("([^=\\[]+)=")))
      line += "Q";
    mutated += line + "\r\n";
  }
  Settings t;
  ASSERT_TRUE(Parse(mutated, t).Ok);
  EXPECT_EQ(SettingsText(t), mutated);
}

TEST(SettingsFile, TruncatedAndGarbageFilesNeverCrash) {
  std::string shipped = Shipped();
  Settings s;
  EXPECT_TRUE(Parse(shipped.substr(0, shipped.find("Radio(2).Baud") + 9), s).Ok);
  EXPECT_EQ(s.Radio[1].Name + s.Radio[2].Name + "|" + s.RadioDefaultSettings[1].Name, "[none][none]|");
  std::mt19937 random(125);
  const std::string alphabet = "[]=\r\n 0123456789-.ABRTadio()CW Macros-UserProfile\0\xff";
  for (int round = 0; round < 300; ++round) {
    std::string text = round % 2 ? shipped.substr(0, random() % shipped.size()) : "";
    for (int i = 0; i < 400; ++i) text += alphabet[random() % alphabet.size()];
    Settings t;
    EXPECT_NO_THROW(Parse(text, t));
  }
}

TEST(SettingsFile, CaptureKeepsTheWindowsOfTheCurrentContest) {
  Settings s;
  ASSERT_TRUE(Parse(Shipped(), s).Ok);
  WindowCapture capture;
  capture.ContestIndex = 3;
  for (int i = 1; i <= WindowRows; ++i) capture.Windows[i] = {i * 100, i * 10, 1000 + i, 2000 + i};
  capture.Windows[2].Left = 40000;  // a wide desktop
  Settings before = s;
  CaptureWindows(s, capture);
  EXPECT_EQ(s.WindowInfo[3][1], (WindowRow{"LOGFORM", "OPEN", 100, 10, 1001, 2001}));
  EXPECT_EQ(s.WindowInfo[3][2].Left, 32767);
  EXPECT_EQ(s.WindowInfo[3][8], (WindowRow{"PARTIAL", "CLOSED", 800, 80, 1008, 2008}));
  EXPECT_EQ(s.WindowInfo[4], before.WindowInfo[4]);
  // A row 8 that is not the partial window's puts it back in every set.
  s.WindowInfo[5][8].WindowName = "OTHER";
  s.WindowInfo[6][8].Top = 1;
  capture.ContestIndex = 5;
  TempFolder dir;
  ASSERT_EQ(WriteSettings(dir.Path + "t.ini", s, capture), std::nullopt);
  EXPECT_EQ(s.WindowInfo[5][1].Left, 100);
  for (int set = 1; set <= SettingsContestSets; ++set)
    EXPECT_EQ(s.WindowInfo[set][8], (WindowRow{"PARTIAL", "CLOSED", 6000, 2000, 3000, 5900})) << set;
  ExpectFound(ReadFile(dir.Path + "t.ini"), {"[Window Information - 05]\r\nLOGFORM OPEN 10 100 1001 2001\r\n"});
  capture.ContestIndex = 0;  // no log open
  Settings unchanged = s;
  CaptureWindows(s, capture);
  EXPECT_EQ(s, unchanged);
}

TEST(SettingsFile, FilesOnDiskAndTheSeedingOfOnlyMissingOnes) {
  TempFolder dir;
  std::string path = dir.Path + "tarnix125.ini";
  Settings s;
  ASSERT_TRUE(Parse(Shipped(), s).Ok);
  s.YourCall = "N6TR";
  s.StationLatitude = 37.25f;
  ASSERT_EQ(WriteSettings(path, s), std::nullopt);
  EXPECT_EQ(ReadFile(path), SettingsText(s));
  EXPECT_FALSE(fs::exists(path + ".new"));
  Settings back;
  ASSERT_TRUE(ReadSettings(path, back, AppFolder).Ok);
  EXPECT_EQ(back, s);
  SettingsResult missing = ReadSettings(dir.Path + "none/tarnix125.ini", back, AppFolder);
  EXPECT_FALSE(missing.Ok);
  EXPECT_EQ(missing.Error, "tarnix125.ini was not found at " + dir.Path + "none/tarnix125.ini");
  std::string folder = dir.Path.substr(0, dir.Path.size() - 1);
  EXPECT_EQ(ReadSettings(folder, back, AppFolder).Error, "Can't read " + folder + ": it is a folder");
  std::string failed = WriteSettings(dir.Path + "none/x.ini", s).value_or("written");
  EXPECT_TRUE(failed.starts_with("Can't write ")) << failed;
  fs::create_directories(dir.Path + "data");
  fs::create_directories(dir.Path + "home");
  WriteFile(dir.Path + "data/tarnix125.ini", "stock");
  WriteFile(dir.Path + "data/tarnix121.dat", "data");
  std::string home = dir.Path + "home/";
  EXPECT_EQ(SeedProgramFolder(home, dir.Path + "data"), std::nullopt);
  EXPECT_EQ(ReadFile(home + "tarnix125.ini"), "stock");
  WriteFile(home + "tarnix125.ini", "mine");
  EXPECT_EQ(SeedProgramFolder(home, dir.Path + "data"), std::nullopt);
  EXPECT_EQ(ReadFile(home + "tarnix125.ini"), "mine");
  fs::remove(home + "tarnix125.ini");
  std::string error = SeedProgramFolder(home, dir.Path + "nodata").value_or("copied");
  EXPECT_TRUE(error.starts_with("Can't copy " + dir.Path + "nodata/tarnix125.ini to ")) << error;
}

}  // namespace
}  // namespace tarnix
