// Moves the lines, compares them, and words what became of each.
#include "messages/chat_lines.h"

#include <algorithm>
#include <utility>

#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "messages/message_texts.h"

namespace zepril {
namespace {

constexpr std::uint32_t kAfterLastSend = chat_colours::kLastSend + 1;

// Sends that are done and sends in all.
struct Sends {
  std::string Done;
  std::string All;
};

Sends SendsOf(const ChatLine& line) {
  const bool given_up = line.Colour == chat_colours::kGivenUp;
  const std::uint32_t now = given_up ? kAfterLastSend : line.Colour;
  return {WholeNumber(now - line.FirstColour), WholeNumber(kAfterLastSend - line.FirstColour)};
}

bool IsForService(const ChatLine& line) {
  return line.FirstColour == chat_colours::kLastSend;
}

std::string WordsOfSending(const ChatLine& line) {
  const bool given_up = line.Colour == chat_colours::kGivenUp;
  if (given_up && IsForService(line)) return chat_texts::kSentToService;
  const Sends sends = SendsOf(line);
  if (given_up) return chat_texts::kGivenUp.With({sends.Done, sends.All});
  const Text words = line.Colour == line.FirstColour ? chat_texts::kNotSentYet : chat_texts::kSent;
  return words.With({sends.Done, sends.All});
}

// Whose last send did not leave.
std::string WordsOfTrouble(const ChatLine& line) {
  if (line.Colour == chat_colours::kGivenUp) {
    const bool never_left =
        IsForService(line) || line.Trouble == std::string(chat_texts::kOtherCall);
    return (never_left ? chat_texts::kGivenUpUnsent : chat_texts::kGivenUpFor).With({line.Trouble});
  }
  if (!chat_colours::HasSendsLeft(line.Colour)) return {};
  const Sends sends = SendsOf(line);
  return chat_texts::kLastOneLost.With({sends.Done, sends.All, line.Trouble});
}

std::string WordsOfColour(const ChatLine& line) {
  switch (line.Colour) {
    case chat_colours::kAcknowledged:
      return NumberIn(line.Text) ? chat_texts::kAcknowledged : chat_texts::kPingAnswered;
    case chat_colours::kPingAnswer:
      return chat_texts::kPingAnswer;
    case chat_colours::kForMe:
      return chat_texts::kForMe;
    case chat_colours::kBetweenOthers:
      return chat_texts::kBetweenOthers;
    default:
      return WordsOfSending(line);
  }
}

}  // namespace

std::string WordsOfState(const ChatLine& line) {
  if (line.Text.empty()) return {};
  const std::string trouble = line.Trouble.empty() ? std::string() : WordsOfTrouble(line);
  return trouble.empty() ? WordsOfColour(line) : trouble;
}

void ChatLines::Push(std::string text, std::uint32_t colour) {
  std::rotate(chat_.Lines.begin(), chat_.Lines.begin() + 1, chat_.Lines.end());
  chat_.Lines.back() = {std::move(text), colour, colour, {}};
  Show();
}

bool ChatLines::Holds(std::string_view text) const {
  return std::any_of(chat_.Lines.begin(), chat_.Lines.end(),
                     [text](const ChatLine& line) { return line.Text == text; });
}

int ChatLines::Waiting() const {
  return static_cast<int>(
      std::count_if(chat_.Lines.begin(), chat_.Lines.end(),
                    [](const ChatLine& line) { return chat_colours::HasSendsLeft(line.Colour); }));
}

void ChatLines::Show() {
  for (std::size_t at = 0; at < chat_.Lines.size(); ++at) {
    Label& label = controls_.Text1[at];
    const ChatLine& line = chat_.Lines[at];
    label.Caption = DoubledAmpersands(line.Text);
    label.ToolTip = WordsOfState(line);
    label.ForeColour.reset();
    if (!line.Text.empty()) label.ForeColour = line.Colour;
  }
}

}  // namespace zepril
