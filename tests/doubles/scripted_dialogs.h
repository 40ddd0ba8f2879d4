// Answers questions from a queue; an unexpected or an unused row fails the test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

#include "platform/dialogs.h"

namespace zepril {

class ScriptedDialogs final : public Dialogs {
 public:
  ~ScriptedDialogs() override {
    EXPECT_TRUE(rows_.empty()) << "never asked: " << (rows_.empty() ? "" : rows_.front().Text);
  }

  void Expect(std::string title, std::string text, DialogAnswer answer = DialogAnswer::Ok) {
    rows_.push_back({std::move(title), std::move(text), answer});
  }

  // May come at any time, or never.
  void Allow(std::string title, std::string text, DialogAnswer answer) {
    allowed_.push_back({std::move(title), std::move(text), answer});
  }

  DialogAnswer Ask(const std::string& title, const std::string& text, DialogButtons buttons,
                   DialogAnswer default_answer) override {
    LastButtons = buttons;
    LastDefault = default_answer;
    if (WhileAsking) WhileAsking();
    for (const Row& row : allowed_)
      if (row.Title == title && row.Text == text) return row.Answer;
    if (rows_.empty()) {
      ADD_FAILURE() << "unexpected box: [" << title << "] " << text;
      return default_answer;
    }
    const Row row = rows_.front();
    rows_.pop_front();
    EXPECT_EQ(title, row.Title);
    EXPECT_EQ(text, row.Text);
    return row.Answer;
  }

  DialogButtons LastButtons = DialogButtons::Ok;
  DialogAnswer LastDefault = DialogAnswer::Ok;
  std::function<void()> WhileAsking;

 private:
  struct Row {
    std::string Title;
    std::string Text;
    DialogAnswer Answer;
  };
  std::deque<Row> rows_;
  std::deque<Row> allowed_;
};

}  // namespace zepril
