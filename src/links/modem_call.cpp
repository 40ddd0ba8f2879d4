// Asks for the call in each modem's words, and finds the answer among prompts and echoes.
#include "links/modem_call.h"

#include <vector>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kPollSeconds = 0.01;
constexpr double kBreakSeconds = 0.5;
constexpr std::string_view kPrompt = "cmd:";

struct Question {
  std::string Leave;  // what leads out of converse, awaited by the prompt
  std::string Ask;
  std::string Return;  // what leads back
};

Question QuestionOf(RadioMode mode) {
  switch (mode) {
    case RadioMode::Pk232:
      // The star wakes one that was switched on and looks for the speed of its line.
      return {"\x03*\r", "MYCALL\r", "K\r"};
    case RadioMode::ScsTnc:
      return {"", "\x1BI\r", ""};
    case RadioMode::ScsPtc:
      return {"", "\x1BMYCALL\r\n", ""};
    default:
      return {};
  }
}

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (const std::string_view word : Split(text, ' ')) {
    if (!word.empty()) words.push_back(word);
  }
  return words;
}

std::string_view WithoutPrompts(std::string_view line) {
  while (line.starts_with(kPrompt))
    line = TrimLeft(line.substr(kPrompt.size()));
  return line;
}

// "* I QX7KB-10 *" and "* QX7KB-10 *", but not "* OK *" nor words of another kind.
std::optional<std::string> CallOfTnc(std::string_view line) {
  if (line.size() < 2 || line.front() != '*' || line.back() != '*') return std::nullopt;
  const auto words = Words(line.substr(1, line.size() - 2));
  const bool named = words.size() == 2 && words.front() == "I";
  if ((words.size() != 1 && !named) || words.back() == "OK") return std::nullopt;
  return std::string(words.back());
}

// "MYCALL   QX7KB-10", "*** MYCALL: QX7KB-10".
std::optional<std::string> CallOfMyCall(std::string_view line) {
  auto words = Words(line);
  if (!words.empty() && words.front() == "***") words.erase(words.begin());
  if (words.size() != 2) return std::nullopt;
  const bool named = EqualFolded(words.front(), "MYCALL") || EqualFolded(words.front(), "MYCALL:");
  return named ? std::optional(std::string(words.back())) : std::nullopt;
}

std::optional<std::string> CallIn(RadioMode mode, std::string_view line) {
  return mode == RadioMode::ScsTnc ? CallOfTnc(line) : CallOfMyCall(line);
}

// `bare`: the line without prompts.
bool BelongsToTheTalk(RadioMode mode, std::string_view line, std::string_view bare) {
  if (CallIn(mode, bare)) return true;
  if (mode == RadioMode::Pk232 && line.empty()) return true;
  return EqualFolded(bare, "MYCALL") || bare == "?What?" || bare == "*" ||
         (bare.empty() && line != bare);
}

std::string_view BaseCall(std::string_view call) {
  return Trim(call.substr(0, call.find('-')));
}

// What has come, until `done` or the time is over.
template <typename Done>
std::string Listen(SerialPort& port, Clock& clock, double seconds, Done done) {
  std::string text = port.ReadAll();
  const double end = clock.MonotonicSeconds() + seconds;
  while (!done(text) && port.IsOpen() && clock.MonotonicSeconds() < end && !clock.EndAsked()) {
    clock.Wait(kPollSeconds);
    text += port.ReadAll();
  }
  return text;
}

}  // namespace

std::optional<std::string> TakeCallAnswer(RadioMode mode, std::string& text) {
  std::optional<std::string> call;
  std::string rest;
  std::string_view left = text;
  while (!left.empty()) {
    const std::size_t line_end = left.find('\n');
    const std::string_view whole =
        left.substr(0, line_end == std::string_view::npos ? line_end : line_end + 1);
    left.remove_prefix(whole.size());
    const std::string_view line = whole.substr(0, whole.find_last_not_of("\r\n") + 1);
    const std::string_view bare = TrimRight(WithoutPrompts(line));
    if (whole.ends_with('\n') && CallIn(mode, bare)) call = CallIn(mode, bare);
    if (!BelongsToTheTalk(mode, line, bare)) rest += whole;
  }
  if (call) text = rest;
  return call;
}

CallHeld AskForCall(RadioMode mode, std::string_view own, SerialPort& port, Clock& clock,
                    std::string& heard) {
  const Question question = QuestionOf(mode);
  if (question.Ask.empty()) return CallHeld::NotTold;
  heard += port.ReadAll();
  std::string text;
  if (!question.Leave.empty()) {
    port.Write(question.Leave);
    text = Listen(port, clock, kBreakSeconds,
                  [](const std::string& t) { return t.find(kPrompt) != std::string::npos; });
  }
  port.Write(question.Ask);
  std::optional<std::string> call;
  text += Listen(port, clock, kLongestAnswerSeconds, [&](const std::string& so_far) {
    std::string all = text + so_far;
    call = TakeCallAnswer(mode, all);
    return call.has_value();
  });
  TakeCallAnswer(mode, text);
  heard += text;
  // What follows waits in the modem's buffer until it has obeyed.
  if (!question.Return.empty()) port.Write(question.Return);
  if (!call) return CallHeld::NotTold;
  return EqualFolded(BaseCall(*call), BaseCall(own)) ? CallHeld::Own : CallHeld::Another;
}

}  // namespace zepril
