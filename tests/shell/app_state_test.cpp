#include "shell/app_state.h"

#include <gtest/gtest.h>

#include <csignal>

#include "shell/cancel.h"

namespace tarnwick {
namespace {

std::atomic<int> g_outer_handler_calls{0};
extern "C" void CountingHandler(int) { g_outer_handler_calls.fetch_add(1); }

// Installs a counting SIGINT handler for the test and puts the old one back.
class OuterHandler {
 public:
  OuterHandler() {
    struct sigaction action {};
    action.sa_handler = CountingHandler;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previous_);
    g_outer_handler_calls = 0;
  }
  ~OuterHandler() { sigaction(SIGINT, &previous_, nullptr); }

 private:
  struct sigaction previous_ {};
};

TEST(AppStateTest, StartsWithTheAllFilesFilterAndNothingRunning) {
  AppState state;
  EXPECT_EQ(state.CurrentFilter, "*.*");
  EXPECT_FALSE(state.CancelRun);
  EXPECT_FALSE(state.run_active);
  EXPECT_FALSE(state.BatchMode);
  EXPECT_EQ(state.random_pool.size(), 0u);
}

TEST(InterruptCancelTest, CtrlCSetsCancelRunAndLeavesOneRequest) {
  OuterHandler outer;
  AppState state;
  {
    ScopedInterruptCancel cancel(state);
    ASSERT_EQ(std::raise(SIGINT), 0);
    EXPECT_TRUE(state.CancelRun);
    EXPECT_TRUE(TakeInterruptRequest());
    EXPECT_FALSE(TakeInterruptRequest());
  }
  EXPECT_EQ(g_outer_handler_calls, 0);
}

TEST(InterruptCancelTest, ACtrlCAfterTheJobClearedTheFlagCancelsAgain) {
  OuterHandler outer;
  AppState state;
  ScopedInterruptCancel cancel(state);
  std::raise(SIGINT);
  ASSERT_TRUE(state.CancelRun);
  state.CancelRun = false;  // the run's epilogue
  std::raise(SIGINT);
  EXPECT_TRUE(state.CancelRun);
  EXPECT_TRUE(TakeInterruptRequest());
}

TEST(InterruptCancelTest, RestorePutsThePreviousHandlerBack) {
  OuterHandler outer;
  AppState state;
  InstallInterruptCancel(state);
  RestoreInterruptHandling();
  std::raise(SIGINT);
  EXPECT_EQ(g_outer_handler_calls, 1);
  EXPECT_FALSE(state.CancelRun);
  EXPECT_FALSE(TakeInterruptRequest());
  RestoreInterruptHandling();  // a second restore changes nothing
  std::raise(SIGINT);
  EXPECT_EQ(g_outer_handler_calls, 2);
}

TEST(InterruptCancelTest, InstallingAgainServesTheNewStateAndRestoresTheFirstHandler) {
  OuterHandler outer;
  AppState first;
  AppState second;
  InstallInterruptCancel(first);
  InstallInterruptCancel(second);
  std::raise(SIGINT);
  EXPECT_FALSE(first.CancelRun);
  EXPECT_TRUE(second.CancelRun);
  RestoreInterruptHandling();
  std::raise(SIGINT);
  EXPECT_EQ(g_outer_handler_calls, 1);
}

TEST(InterruptCancelDeathTest, ASecondCtrlCBeforeTheJobActedEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        AppState state;
        InstallInterruptCancel(state);
        std::raise(SIGINT);
        std::raise(SIGINT);
        std::exit(0);
      },
      ::testing::KilledBySignal(SIGINT), "");
}

TEST(InterruptCancelDeathTest, OneCtrlCDoesNotEndTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        AppState state;
        InstallInterruptCancel(state);
        std::raise(SIGINT);
        std::exit(state.CancelRun ? 7 : 1);
      },
      ::testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace tarnwick
