// Opens, steps and closes pictures, and writes the page with its escaped address.
#include "viewers/picture_viewer.h"

#include <array>
#include <string_view>

#include "core/text_fields.h"
#include "core/texts/notices.h"

namespace zepril {
namespace {

constexpr std::string_view kPageLineEnd = "\r\n";
constexpr std::size_t kNameColumns = 12;  // of a name in the list; longer ones are cut there
constexpr int kLeftButton = 1;

// What is shown in the panel; anything else is left to other programs.
constexpr std::array<std::string_view, 10> kPictureExtensions{"BMP", "DIB", "JPG", "JPEG", "JPE",
                                                              "PNG", "GIF", "PPM", "PGM",  "PBM"};

std::string ExtensionOf(std::string_view path) {
  const std::size_t point = path.rfind('.');
  return point == std::string_view::npos ? std::string() : Upper(path.substr(point + 1));
}

bool IsPictureName(std::string_view path) {
  const std::string extension = ExtensionOf(path);
  for (std::string_view known : kPictureExtensions) {
    if (extension == known) return true;
  }
  return false;
}

std::string_view NameOf(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

bool IsPlainInAddress(char c) {
  const int code = Asc(c);
  return code > 32 && code < 127 && c != '%' && c != '#' && c != '?';
}

void AppendEscaped(std::string& text, char c) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const auto code = static_cast<std::size_t>(Asc(c));
  text += '%';
  text += kHex[code / 16];
  text += kHex[code % 16];
}

// A path in a page's attribute: blanks may stand there, signs of HTML may not.
std::string AttributeText(std::string_view native_path) {
  std::string text;
  for (char c : native_path) {
    switch (c) {
      case '&':
        text += "&amp;";
        break;
      case '<':
        text += "&lt;";
        break;
      case '>':
        text += "&gt;";
        break;
      case '"':
        text += "&quot;";
        break;
      default:
        if (c == ' ' || IsPlainInAddress(c)) {
          text += c;
        } else {
          AppendEscaped(text, c);
        }
    }
  }
  return text;
}

}  // namespace

std::string PicturePage(const std::string& native_path) {
  // Kept: `dynsrc` for clips, which today's browsers pass over; the clip itself is opened outside.
  const std::string source = ExtensionOf(native_path) == "AVI" ? "dynsrc" : "src";
  std::string page;
  for (const std::string& line :
       {std::string("<html>"), std::string("<body bgcolor=\"#505050\">"), std::string("<center>"),
        "<img " + source + "=\"" + AttributeText(native_path) + "\">", std::string("</center>"),
        std::string("</body>"), std::string("</html>")}) {
    page.append(line).append(kPageLineEnd);
  }
  return page;
}

std::string FileAddress(const std::string& native_path) {
  std::string address = "file://";
  for (char c : native_path) {
    if (IsPlainInAddress(c) && c != '"' && c != '<' && c != '>') {
      address += c;
    } else {
      AppendEscaped(address, c);
    }
  }
  return address;
}

PictureViewer::PictureViewer(const IdentityState& identity, MapViewState& view,
                             PicturePanelControls& controls, MapControls& map,
                             PictureViewerTools tools)
    : identity_(identity), view_(view), controls_(controls), map_(map), tools_(tools) {
  controls_.Command29.Click = [this] { StepPicture(-1); };
  controls_.Command30.Click = [this] { StepPicture(+1); };
  controls_.Command70.Click = [this] { OpenOutside(); };
  controls_.Command71.Click = [this] { CloseByOperator(); };
  controls_.Picture.Click = [this] {
    if (view_.PictureMode != MapShows::Picture || !map_.Picture1.MouseDown) return;
    map_.Picture1.MouseDown({kLeftButton, 0, view_.CursorX, view_.CursorY});
  };
}

void PictureViewer::ShowPicture(int index) {
  const auto count = static_cast<int>(view_.PictureNames.size());
  const bool known = index >= 1 && index <= count;
  const std::string name =
      known ? view_.PictureNames[static_cast<std::size_t>(index - 1)] : std::string();
  controls_.Frame8.Visible = true;
  controls_.PictureName.Caption =
      WholeNumber(known ? index : 0) + " / " + WholeNumber(count) + "  " + name;
  ShowFile(name);
}

void PictureViewer::MapRedrawn() {
  if (view_.PictureMode != MapShows::Picture && controls_.Frame8.Visible) ClosePicture();
}

void PictureViewer::ShowFile(const std::string& name) {
  const std::string path = name.empty() ? std::string() : FilePath(name);
  const std::optional<FileStamp> stamp =
      path.empty() ? std::optional<FileStamp>() : tools_.Disk.Stamp(path);
  // Nothing has changed since the last redraw.
  if (shown_ && path == path_ && stamp == stamp_) return;
  shown_ = true;
  path_ = path;
  stamp_ = stamp;
  if (path.empty()) {
    kind_ = Kind::None;
  } else if (!stamp || !stamp->IsRegular) {
    kind_ = Kind::Gone;
  } else {
    kind_ = IsPictureName(path) ? Kind::Picture : Kind::Clip;
  }
  if (!path.empty()) WritePage();
  ShowCaption();
  controls_.Picture.Path = kind_ == Kind::Picture ? path : std::string();
  ++controls_.Picture.Revision;
}

void PictureViewer::ShowCaption() {
  const std::string name(NameOf(path_));
  std::string& caption = controls_.Picture.Caption;
  switch (kind_) {
    case Kind::Picture:
      // Seen when the file turns out to be damaged.
      caption = notices::kPictureDamaged.With({name});
      break;
    case Kind::Clip:
      caption = notices::kPictureOutside.With({name});
      break;
    case Kind::Gone:
      caption = notices::kPictureGone.With({name});
      break;
    case Kind::None:
      caption = notices::kNoPicture;
      break;
  }
}

std::string PictureViewer::FolderPath() const {
  return identity_.MapsPath + "\\UTMPICS";
}

// The list holds twelve characters of a name: the file of a longer one is the first that begins so.
std::string PictureViewer::FilePath(const std::string& name) const {
  const std::string path = FolderPath() + "\\" + name;
  if (name.size() < kNameColumns || tools_.Disk.Exists(path)) return path;
  for (const FolderEntry& entry : tools_.Disk.List(FolderPath(), name + "*")) {
    const std::string_view front = Left(entry.Name, kNameColumns);
    if (!entry.IsFolder && EqualFolded(front, name)) return FolderPath() + "\\" + entry.Name;
  }
  return path;
}

void PictureViewer::WritePage() {
  page_written_ = tools_.Disk.Write(identity_.ProgramFolder + "\\PIC.HTM",
                                    PicturePage(tools_.Disk.NativePath(path_)));
}

void PictureViewer::ClosePicture() {
  controls_.Frame8.Visible = false;
  controls_.Picture.Path.clear();
  ++controls_.Picture.Revision;
  shown_ = false;
  kind_ = Kind::None;
}

// Round the end of the list, either way.
void PictureViewer::StepPicture(int step) {
  const auto count = static_cast<int>(view_.PictureNames.size());
  if (count > 0) view_.SelectedPicture = (view_.SelectedPicture - 1 + step + count) % count + 1;
  ShowPicture(view_.SelectedPicture);
  tools_.Timer1.Arm(kLookingMs);
}

// The page for a picture, so that a browser shows it as the panel does; for a clip the clip itself,
// for no browser of today plays it from the page.
void PictureViewer::OpenOutside() {
  if (kind_ == Kind::Clip || (kind_ == Kind::Picture && !page_written_)) {
    tools_.Desktop.Open(FileAddress(tools_.Disk.NativePath(path_)));
  } else if (kind_ == Kind::Picture) {
    tools_.Desktop.Open(FileAddress(tools_.Disk.NativePath(identity_.ProgramFolder + "\\PIC.HTM")));
  }
}

void PictureViewer::CloseByOperator() {
  view_.PictureMode = MapShows::Map;
  ClosePicture();
  // The cycle stands still while the map is painted; the redraw starts it again.
  tools_.Timer1.Stop();
  tools_.Map.MapRedraw();
}

}  // namespace zepril
