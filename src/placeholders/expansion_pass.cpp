#include "placeholders/expansion_pass.h"

#include <exception>
#include <new>

#include "base/vb_error.h"
#include "persist/option_store.h"

namespace tarnwick {

ExpressionIndex::ExpressionIndex(std::string_view expression)
    : expression_(expression), lower_(AsciiLower(expression)) {
  const std::string_view lower(lower_);
  for (std::size_t at = lower.find("{{"); at != std::string_view::npos;
       at = lower.find("{{", at + 1)) {
    const std::size_t close = lower.find("}}", at + 2);
    // A "{{" without "}}" still counts as an opening; it is no token.
    tokens_.push_back(close == std::string_view::npos ? lower.substr(at, 2)
                                                      : lower.substr(at, close + 2 - at));
  }
  // The pass count splits at "{{" without overlaps: "{{{" holds one.
  for (std::size_t at = lower.find("{{"); at != std::string_view::npos;
       at = lower.find("{{", at + 2)) {
    ++opening_count_;
  }
}

bool ExpressionIndex::Has(std::string_view token) const {
  for (std::string_view candidate : tokens_) {
    if (candidate == token) return true;
  }
  return false;
}

bool ExpressionIndex::HasPrefix(std::string_view prefix) const {
  for (std::string_view candidate : tokens_) {
    if (candidate.starts_with(prefix)) return true;
  }
  return false;
}

ExpansionPass::ExpansionPass(const ExpansionContext& context, const ExpressionIndex& index,
                             std::string_view file_date, std::string_view file_path)
    : context_(context),
      index_(index),
      file_date_(file_date),
      file_path_(file_path),
      text_(index.expression()) {}

const std::string& ExpansionPass::row_path() const {
  if (row_path_.empty()) {
    const RowTexts& row = context_.row;
    row_path_ = row.folder;
    if (!row_path_.empty() && row_path_.back() != '/') row_path_ += '/';
    row_path_ += row.name;
  }
  return row_path_;
}

std::string ExpansionPass::Option(std::string_view name, std::string_view default_value) const {
  if (context_.options == nullptr) return std::string(default_value);
  return context_.options->GetOption(name, "Options", default_value);
}

void ExpansionPass::ReportCurrentFault() {
  faulted_ = true;
  int number = 0;
  std::string description;
  try {
    throw;
  } catch (const VbError& error) {
    number = error.number();
    description = error.description();
  } catch (const std::bad_alloc&) {
    number = vb_error::kOutOfMemory;
    description = "Out of memory";
  } catch (const std::exception& error) {
    number = vb_error::kInvalidProcedureCall;
    description = error.what();
  } catch (...) {
    number = vb_error::kInvalidProcedureCall;
    description = "Invalid procedure call or argument";
  }
  if (context_.log == nullptr) return;
  context_.log->WriteLogFileTool("Converting placeholders failed",
                                 "!" + std::to_string(number) + ": " + description);
}

}  // namespace tarnwick
