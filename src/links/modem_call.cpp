// Asks for the call in each modem's words, and finds the answer among prompts and echoes.
#include "links/modem_call.h"

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kPollSeconds = 0.01;
constexpr double kBreakSeconds = 0.5;
constexpr double kLineFeedSeconds = 0.05;
constexpr std::string_view kPrompt = "cmd:";

std::string_view WithoutPrompts(std::string_view line) {
  while (line.starts_with(kPrompt))
    line = TrimLeft(line.substr(kPrompt.size()));
  return line;
}

// `bare`: the line without prompts.
bool BelongsToTheTalk(const ModemKind& kind, std::string_view line, std::string_view bare) {
  if (kind.CallIn(bare)) return true;
  if (kind.AnswersWithEmptyLines && line.empty()) return true;
  return EqualFolded(bare, "MYCALL") || bare == "?What?" || bare == "*" ||
         (bare.empty() && line != bare);
}

// The first line with its end: CR LF, or one of them alone, as a modem's settings have it.
std::size_t LengthOfLine(std::string_view text) {
  const std::size_t end = text.find_first_of("\r\n");
  if (end == std::string_view::npos) return text.size();
  return text.substr(end).starts_with("\r\n") ? end + 2 : end + 1;
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

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (const std::string_view word : Split(text, ' ')) {
    if (!word.empty()) words.push_back(word);
  }
  return words;
}

std::optional<std::string> CallOfMyCall(std::string_view line) {
  auto words = WordsOf(line);
  if (!words.empty() && words.front() == "***") words.erase(words.begin());
  if (words.size() != 2) return std::nullopt;
  const bool named = EqualFolded(words.front(), "MYCALL") || EqualFolded(words.front(), "MYCALL:");
  return named ? std::optional(std::string(words.back())) : std::nullopt;
}

std::optional<std::string> TakeCallAnswer(const ModemKind& kind, std::string& text) {
  std::optional<std::string> call;
  std::string rest;
  std::string_view left = text;
  while (!left.empty()) {
    const std::string_view whole = left.substr(0, LengthOfLine(left));
    left.remove_prefix(whole.size());
    const std::string_view line = whole.substr(0, whole.find_last_not_of("\r\n") + 1);
    const std::string_view bare = TrimRight(WithoutPrompts(line));
    if (whole.size() > line.size() && kind.CallIn(bare)) call = kind.CallIn(bare);
    if (!BelongsToTheTalk(kind, line, bare)) rest += whole;
  }
  if (call) text = rest;
  return call;
}

CallHeld AskForCall(const ModemKind& kind, std::string_view own, SerialPort& port, Clock& clock,
                    std::string& heard) {
  const CallQuestion& question = kind.Call;
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
    call = TakeCallAnswer(kind, all);
    return call.has_value();
  });
  // The LF of a line whose CR has come belongs to the answer.
  if (text.ends_with('\r')) {
    text += Listen(port, clock, kLineFeedSeconds, [](const std::string& t) { return !t.empty(); });
  }
  TakeCallAnswer(kind, text);
  heard += text;
  // What follows waits in the modem's buffer until it has obeyed.
  if (!question.Return.empty()) port.Write(question.Return);
  if (!call) return CallHeld::NotTold;
  return EqualFolded(BaseCall(*call), BaseCall(own)) ? CallHeld::Own : CallHeld::Another;
}

}  // namespace zepril
