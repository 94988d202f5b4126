#pragma once

#include <chrono>

#include "shell/cli_interaction.h"

namespace tarnwick::cli {

// Shows status and progress only once a job has taken longer than a moment,
// so short fills and runs print nothing but their results.
class PatientInteraction : public CliInteraction {
 public:
  using CliInteraction::CliInteraction;
  void ShowStatus(StatusArea area, std::string_view text) override {
    if (Due()) CliInteraction::ShowStatus(area, text);
  }
  void ShowProgress(std::int64_t value, std::int64_t max) override {
    if (Due()) CliInteraction::ShowProgress(value, max);
  }

 private:
  bool Due() const { return std::chrono::steady_clock::now() - start_ > kMoment; }
  static constexpr std::chrono::milliseconds kMoment{400};
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace tarnwick::cli
