// The field of MONI 1 and its list of calls, and what a new choice brings with it.
#include "reception/followed_choice.h"

#include "core/keys.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::ptrdiff_t kExtension = 4;  // ".TXT"

}  // namespace

FollowedChoice::FollowedChoice(const IdentityState& identity, const StoresState& stores,
                               FollowedStationState& followed, Moni1Controls& moni1,
                               RecordPanelControls& record, FollowedChoiceTools tools)
    : identity_(identity), stores_(stores), followed_(followed), moni1_(moni1), tools_(tools) {
  moni1_.Combo9.Click = [this] { FollowTyped(); };
  moni1_.Combo9.KeyDown = [this](KeyPress key) {
    moni1_.Combo9.LastKeySeconds = tools_.LocalClock.MonotonicSeconds();
    if (key.Code == kEnterKey) FollowTyped();
  };
  moni1_.Check1.Click = [this] {
    followed_.Moni1AlarmOn = moni1_.Check1.Value;
    tools_.Settings.WriteConfigFromMainWindow();
  };
  record.Command11.Click = [this] { Follow(stores_.SelectedStationCall); };
}

void FollowedChoice::LoadAtStart() {
  tools_.History.LoadAtStart();
  ListCalls();
  moni1_.Combo9.Text = followed_.Moni1Call;
}

void FollowedChoice::FollowTyped() {
  Follow(std::string(Trim(moni1_.Combo9.Text)));
}

void FollowedChoice::Follow(const std::string& call) {
  tools_.Timer1.Hold();
  tools_.History.ChangeStation(call);
  ListCalls();
  moni1_.Combo9.Text = followed_.Moni1Call;
  tools_.Browser.FollowedStationChanged();
  tools_.Map.MapRedraw();
}

void FollowedChoice::ListCalls() {
  ComboBox& field = moni1_.Combo9;
  field.Items.clear();
  const std::string folder = identity_.MapSystemFolder + "\\LOG";
  for (const FolderEntry& entry : tools_.Disk.List(folder, "*.TXT")) {
    if (entry.IsFolder || entry.Name.starts_with("_")) continue;
    const auto length = static_cast<std::ptrdiff_t>(entry.Name.size()) - kExtension;
    field.Items.push_back(Upper(Left(entry.Name, length)));
  }
  field.ListIndex = -1;
}

}  // namespace zepril
