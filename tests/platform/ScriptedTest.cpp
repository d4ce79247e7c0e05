#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

#include "platform/Scripted.h"

namespace tarnix {
namespace {

std::string Stamp(const LocalDateTime& t) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", t.Year, t.Month, t.Day, t.Hour, t.Minute, t.Second);
  return text;
}

TEST(FakeClock, AdvanceRollsOverMidnightMonthAndYear) {
  struct Row { LocalDateTime start; int64_t ms; const char* now; };
  const Row rows[] = {{{2024, 6, 1, 12, 0, 0}, 59999, "2024-06-01 12:00:59"},
                      {{2024, 6, 1, 23, 59, 58}, 1000, "2024-06-01 23:59:59"},
                      {{2024, 6, 1, 23, 59, 59}, 1000, "2024-06-02 00:00:00"},
                      {{2009, 12, 31, 23, 59, 30}, 45000, "2010-01-01 00:00:15"},
                      {{2024, 2, 28, 23, 0, 0}, 3600000, "2024-02-29 00:00:00"},
                      {{2024, 2, 28, 12, 0, 0}, 2 * 86400000LL, "2024-03-01 12:00:00"}};
  FakeClock clock;
  for (const Row& r : rows) {
    clock.Set(r.start);
    EXPECT_EQ(Stamp(clock.Now()), Stamp(r.start));
    clock.Advance(r.ms);
    EXPECT_EQ(Stamp(clock.Now()), r.now);
  }
}

TEST(FakeClock, TimersFireInTimeOrderOnlyWhileEnabled) {
  FakeClock clock;
  clock.Set({2024, 6, 1, 23, 59, 59});
  std::string fired;
  auto a = clock.CreateTimer([&] { fired += "A" + std::to_string(clock.Milliseconds()) + " "; });
  auto b = clock.CreateTimer([&] { fired += "B" + std::to_string(clock.Milliseconds()) + " "; });
  a->SetInterval(300);
  b->SetInterval(500);
  EXPECT_FALSE(a->Enabled());
  auto advance = [&](int64_t ms) {
    clock.Advance(ms);
    return fired;
  };
  EXPECT_EQ(advance(1000), "");
  a->SetEnabled(true);
  b->SetEnabled(true);
  EXPECT_EQ(advance(999), "A1300 B1500 A1600 A1900 ");
  EXPECT_EQ(advance(1), "A1300 B1500 A1600 A1900 B2000 ");
  b->SetEnabled(false);
  EXPECT_EQ(advance(600), "A1300 B1500 A1600 A1900 B2000 A2200 A2500 ");
  // A tick sees its own moment and may stop its timer.
  std::string seen;
  std::unique_ptr<Timer> t = clock.CreateTimer([&] {
    seen += Stamp(clock.Now()) + " ";
    if (seen.size() > 20) t->SetEnabled(false);
  });
  a->SetEnabled(false);
  t->SetInterval(1000);
  t->SetEnabled(true);
  clock.Advance(5000);
  EXPECT_EQ(seen, "2024-06-02 00:00:02 2024-06-02 00:00:03 ");
}

struct Probe : FormModel {
  std::string FormName() const override { return "Probe"; }
  void CloseByFrame() override { ++Closed; }
  int Closed = 0;
};

TEST(Scripted, BoxesFormsAndFilesFollowTheirQueues) {
  ScriptedPlatform desk;
  const MessageBoxRequest kill{"Kill?", "Confirm", MsgButtons::YesNo, MsgIcon::Question, MsgAnswer::Yes};
  desk.Boxes.Answers = {MsgAnswer::No};
  EXPECT_EQ(desk.Boxes.Show(kill), MsgAnswer::No);
  EXPECT_EQ(desk.Boxes.Show(kill), MsgAnswer::Yes);  // queue empty: the default
  EXPECT_EQ(desk.Boxes.Show({"Retry?", "Err", MsgButtons::AbortRetryIgnore, MsgIcon::Critical, MsgAnswer::Retry}),
            MsgAnswer::Retry);
  ASSERT_EQ(desk.Boxes.Shown.size(), 3u);
  EXPECT_EQ(desk.Boxes.Shown[2].Text, "Retry?");
  desk.Files.Names = {std::string("/tmp/a.TNX")};
  EXPECT_EQ(desk.Files.OpenFile({}), std::optional<std::string>("/tmp/a.TNX"));
  EXPECT_EQ(desk.Files.SaveFile({}), std::nullopt);
  EXPECT_EQ(desk.Files.Shown.size(), 2u);
  Probe probe;
  desk.Forms.Actions["Probe"].push_back([](FormModel& f) { f.Visible = false; });
  desk.Forms.ShowModal(probe);
  EXPECT_EQ(probe.Closed, 0);
  desk.Forms.ShowModal(probe);  // no action left: closed by its frame
  EXPECT_TRUE(probe.Closed == 1 && !probe.Visible);
  EXPECT_EQ(desk.Forms.Shown.size(), 2u);
}

}  // namespace
}  // namespace tarnix
