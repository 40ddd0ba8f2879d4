// Appends to the log, shows, shortens and clears it.
#include "messages/chat_log.h"

#include <deque>

#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "core/texts/file_troubles.h"
#include "messages/message_texts.h"

namespace zepril {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

template <class Lines>
std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    text += kLineEnd;
  }
  return text;
}

}  // namespace

ChatLog::ChatLog(ChatLogSections sections, ChatControls& controls, ChatLogTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  controls_.Command24.Click = [this] { OpenOrClose(); };
  controls_.Command25.Click = [this] { Clear(); };
  controls_.Command28.Click = [this] { Close(); };
}

std::string ChatLog::Path() const {
  return sections_.Identity.MapSystemFolder + R"(\LOG\_CHATLOG.TXT)";
}

std::string ChatLog::DayAndTime(char between) const {
  const LocalTime now = tools_.LocalClock.Now();
  return ZeroPadded(now.Year, 4) + ZeroPadded(now.Month, 2) + ZeroPadded(now.Day, 2) + between +
         ZeroPadded(now.Hour, 2) + ZeroPadded(now.Minute, 2);
}

void ChatLog::Append(std::string_view chat_line) {
  std::string line = LogLine(DayAndTime(' '), chat_line);
  line += kLineEnd;
  NoteTrouble(tools_.Disk.Append(Path(), line));
}

void ChatLog::NoteTrouble(bool written) {
  sections_.Chat.LogTrouble =
      written ? std::string() : chat_texts::kLogNotWritten.With({WordsOf(tools_.Disk.Trouble())});
}

void ChatLog::MakeSureOfFile() {
  if (!tools_.Disk.Exists(Path())) tools_.Disk.Append(Path(), "");
}

void ChatLog::OpenOrClose() {
  controls_.Frame7.Visible ? Close() : Open();
}

void ChatLog::Open() {
  tools_.Timer1.SetInterval(kOpenMilliseconds);
  MakeSureOfFile();
  controls_.Text5.Text = Joined(TakeLines());
  controls_.Frame7.Visible = true;
  if (HasNoRadio(sections_.Radio)) return;
  TextBox& next = Trim(controls_.Text2.Text).empty() ? controls_.Text2 : controls_.Text3;
  next.FocusWanted = true;
}

void ChatLog::Close() {
  if (!controls_.Frame7.Visible) return;
  controls_.Frame7.Visible = false;
  tools_.Timer1.SetInterval(kClosedMilliseconds);
}

void ChatLog::Clear() {
  std::vector<std::string> lines;
  for (const ChatLine& line : sections_.Chat.Lines) {
    if (!line.Text.empty()) lines.push_back(LogLine(DayAndTime('<'), line.Text));
  }
  if (lines.empty()) {
    tools_.Disk.Remove(Path());
  } else {
    NoteTrouble(tools_.Disk.Replace(Path(), Joined(lines)));
  }
  Close();
}

std::vector<std::string> ChatLog::TakeLines() {
  std::deque<std::string> last;
  std::size_t count = 0;
  tools_.Disk.ReadLines(Path(), [&](std::string_view line) {
    last.emplace_back(line);
    if (last.size() > kMostLines) last.pop_front();
    ++count;
    return true;
  });
  if (count > kMostLines) {
    last.erase(last.begin(), last.end() - kLinesKept);
    NoteTrouble(tools_.Disk.Replace(Path(), Joined(last)));
  }
  return {last.begin(), last.end()};
}

}  // namespace zepril
