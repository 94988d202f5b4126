#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "placeholders/expansion_context.h"
#include "placeholders/token_text.h"

namespace tarnwick {

// What a pass knows of its expression, worked out once per call: the
// expression with ASCII letters in lower case (same byte positions), and the
// tokens that stand in it, each "{{" up to the first "}}" behind it.
class ExpressionIndex {
 public:
  explicit ExpressionIndex(std::string_view expression);

  std::string_view expression() const { return expression_; }
  std::string_view lower() const { return lower_; }
  // Whether the complete token (lower case, braces included) stands in it.
  bool Has(std::string_view token) const;
  // Whether any token starts with `prefix` (lower case): a family test.
  bool HasPrefix(std::string_view prefix) const;
  // Byte position of `text` (lower case) in the expression, or npos.
  std::size_t Find(std::string_view text, std::size_t from = 0) const {
    return lower_.find(text, from);
  }
  // How often "{{" occurs, counted without overlaps.
  int opening_count() const { return opening_count_; }

 private:
  std::string_view expression_;
  std::string lower_;
  std::vector<std::string_view> tokens_;  // views into lower_
  int opening_count_ = 0;
};

// The running text of one pass and the fault handler around each statement.
class ExpansionPass {
 public:
  ExpansionPass(const ExpansionContext& context, const ExpressionIndex& index,
                std::string_view file_date, std::string_view file_path);

  const ExpansionContext& context() const { return context_; }
  const ExpressionIndex& index() const { return index_; }
  std::string_view file_date() const { return file_date_; }
  std::string_view file_path() const { return file_path_; }
  // Folder and name of the row joined: the path of tag, drive, picture and
  // attribute tokens.
  const std::string& row_path() const;

  std::string& text() { return text_; }
  bool Has(std::string_view token) const { return index_.Has(token); }

  // Runs one statement; a fault is logged and the pass goes on.
  template <typename Statement>
  void Run(Statement&& statement) {
    try {
      statement();
    } catch (...) {
      ReportCurrentFault();
    }
  }
  // If the token stands in the expression, every occurrence of it in the
  // running text becomes `value()`. A fault in `value` leaves the token.
  template <typename Value>
  void ValueToken(std::string_view token, Value&& value) {
    if (!Has(token)) return;
    Run([&] { ReplaceToken(text_, token, value()); });
  }
  // If the token stands in the expression, it is removed from the running
  // text and `transform` gets the rest (scratch); its result is the new text.
  template <typename Transform>
  void TransformToken(std::string_view token, Transform&& transform) {
    if (!Has(token)) return;
    Run([&] { text_ = transform(RemoveToken(text_, token)); });
  }

  // Option of section "Options", read at the moment of use.
  std::string Option(std::string_view name, std::string_view default_value) const;

  // Whether a statement of this pass faulted (and wrote its log line).
  bool faulted() const { return faulted_; }

 private:
  void ReportCurrentFault();

  const ExpansionContext& context_;
  const ExpressionIndex& index_;
  std::string_view file_date_;
  std::string_view file_path_;
  std::string text_;
  mutable std::string row_path_;
  bool faulted_ = false;
};

}  // namespace tarnwick
