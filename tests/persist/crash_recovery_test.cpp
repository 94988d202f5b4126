#include "persist/crash_recovery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "log_undo_fixture.h"

namespace tarnwick::testing {
namespace {

using CrashRecoveryTest = LogUndoTest;

TEST_F(CrashRecoveryTest, AStartThatFinishesLeavesZero) {
  Set("View", "0");
  EXPECT_FALSE(RecoverFromFailedStart(env_, log_));
  EXPECT_EQ(Get("ResetPath"), "1");
  MarkStartFinished(env_);
  EXPECT_EQ(Get("ResetPath"), "0");
  EXPECT_FALSE(RecoverFromFailedStart(env_, log_));
  EXPECT_EQ(Get("View"), "0");
  EXPECT_TRUE(ask_.asked().empty());
}

TEST_F(CrashRecoveryTest, AStartThatCrashedClearsTheOptionsOnly) {
  Set("LogOnlyRename", "0");
  EXPECT_FALSE(RecoverFromFailedStart(env_, log_));
  // ... the process dies here; the next start:
  options_.SaveOption("setName", "XML", "0");
  ask_.Then(Answer::kOk);
  EXPECT_TRUE(RecoverFromFailedStart(env_, log_));

  EXPECT_EQ(Get("LogOnlyRename"), "");
  EXPECT_EQ(Get("ResetPath"), "");
  EXPECT_EQ(options_.GetOption("setName", "XML", ""), "0");
  ASSERT_EQ(ask_.asked().size(), 1u);
  EXPECT_EQ(ask_.asked()[0].title, "ATTENTION!");
  EXPECT_EQ(ask_.asked()[0].text,
            "Tarnwick could not start properly so all options are set back to their defaults.");
  EXPECT_EQ(ask_.asked()[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(LogText(),
            "-> [15.11.2026 20:11:00] Previous Load Error [Set all options to defaults while "
            "previous execution failed [15.11.2026]]\r\n");
  // Kept: the flag is not set again by a recovering start.
  EXPECT_FALSE(RecoverFromFailedStart(env_, log_));
  EXPECT_EQ(ask_.asked().size(), 1u);
}

TEST_F(CrashRecoveryTest, WithDefaultLoggingTheRecoveryIsNotLogged) {
  Set("ResetPath", "1");
  ask_.Then(Answer::kOk);
  EXPECT_TRUE(RecoverFromFailedStart(env_, log_));
  EXPECT_FALSE(std::filesystem::exists(LogPath()));
}

TEST_F(CrashRecoveryTest, OnlyTheTextOneCounts) {
  Set("ResetPath", "01");
  EXPECT_FALSE(RecoverFromFailedStart(env_, log_));
  EXPECT_EQ(Get("ResetPath"), "1");
}

}  // namespace
}  // namespace tarnwick::testing
