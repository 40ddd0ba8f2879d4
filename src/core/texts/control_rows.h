// What a row of a form's table is: a control, its name, and every text that belongs to it; and how
// such a table is brought to the controls.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <tuple>

#include "core/controls.h"
#include "core/text_fields.h"
#include "core/texts/text.h"

namespace zepril {

// What stands on a control. `Own` words are the program's, the same in every language; they are set
// once, as the program steps some of them on.
struct CaptionText {
  Text Words;
  bool IsOwn = false;
};
consteval CaptionText Own(const char* word) {
  return {{word}, true};
}

// Where a row's control stands: a member of a group, one element of a member, or all of them. Those
// are numbered from `First` on: in their name, and for "%1" in the row's texts.
constexpr int kWhole = -1;
constexpr int kUnnumbered = -1;
template <auto Member, int Element, int First>
struct Place {};
template <auto Member>
constexpr Place<Member, kWhole, kUnnumbered> On() {
  return {};
}
template <auto Member, int Element>
constexpr Place<Member, Element, kUnnumbered> At() {
  return {};
}
template <auto Member, int First>
constexpr Place<Member, kWhole, First> All() {
  return {};
}

template <auto Member>
struct MemberOf;
template <class Group, class Type, Type Group::*Member>
struct MemberOf<Member> {
  using Owner = Group;
};

// The control of a place as the form's table reaches it. A form tells its groups by `Groups`, a
// tuple of references.
template <class Form>
class ControlPlace {
 public:
  template <auto Member, int Element, int First>
  constexpr ControlPlace(Place<Member, Element, First>)
      : at_([](Form& form, std::size_t at) -> Control& { return Find<Member, Element>(form, at); }),
        put_caption_([](Form& form, std::size_t at, const std::string& caption) {
          auto& control = Find<Member, Element>(form, at);
          if constexpr (requires { control.Caption; }) control.Caption = caption;
        }),
        count_(CountOf<Member, Element>()),
        first_(First) {}

  std::size_t Count() const { return count_; }
  Control& At(Form& form, std::size_t at) const { return at_(form, at); }
  void PutCaption(Form& form, std::size_t at, const std::string& caption) const {
    put_caption_(form, at, caption);
  }
  // "3", or an empty text where they are not numbered.
  std::string Number(std::size_t at) const {
    return first_ < 0 ? std::string() : WholeNumber(first_ + static_cast<int>(at));
  }

 private:
  template <auto Member>
  static auto& Whole(Form& form) {
    return std::get<typename MemberOf<Member>::Owner&>(Groups(form)).*Member;
  }
  template <auto Member, int Element>
  static auto& Find(Form& form, std::size_t at) {
    auto& whole = Whole<Member>(form);
    if constexpr (Element >= 0) {
      return std::get<static_cast<std::size_t>(Element)>(whole);
    } else if constexpr (requires { whole.size(); }) {
      return whole[at];
    } else {
      return whole;
    }
  }
  template <auto Member, int Element>
  static constexpr std::size_t CountOf() {
    using Whole =
        std::remove_reference_t<decltype(std::declval<typename MemberOf<Member>::Owner&>().*
                                         Member)>;
    if constexpr (Element < 0 && requires { std::tuple_size<Whole>::value; }) {
      return std::tuple_size<Whole>::value;
    } else {
      return 1;
    }
  }

  Control& (*at_)(Form&, std::size_t);
  void (*put_caption_)(Form&, std::size_t, const std::string&);
  std::size_t count_;
  int first_;
};

template <class Form>
struct ControlRow {
  const char* Name;  // of the control, and of its widget
  ControlPlace<Form> Subject;
  CaptionText Caption = {};
  Text ToolTip = {};     // without one the logic may set its own
  Text Called = {};      // the label beside a field, and what a screen reader says
  Text WhileEmpty = {};  // what stands in an empty field; said of a control without a caption
  Text Key = {};         // the key that does the same, told in the tool tip
};

// Gives every control its name and the program's own words.
template <class Form, std::size_t Rows>
void NameControls(Form& form, const ControlRow<Form> (&table)[Rows]) {
  for (const ControlRow<Form>& row : table) {
    for (std::size_t at = 0; at < row.Subject.Count(); ++at) {
      const std::string number = row.Subject.Number(at);
      row.Subject.At(form, at).Name = row.Name + number;
      if (row.Caption.IsOwn) row.Subject.PutCaption(form, at, row.Caption.Words.With({number}));
    }
  }
}

// Brings the texts that depend on the language; without `tool_tips` these are blank.
template <class Form, std::size_t Rows>
void SayControls(Form& form, const ControlRow<Form> (&table)[Rows], bool tool_tips) {
  for (const ControlRow<Form>& row : table) {
    for (std::size_t at = 0; at < row.Subject.Count(); ++at) {
      const std::string number = row.Subject.Number(at);
      Control& control = row.Subject.At(form, at);
      if (row.Caption.Words.IsThere() && !row.Caption.IsOwn) {
        row.Subject.PutCaption(form, at, row.Caption.Words.With({number}));
      }
      if (row.ToolTip.IsThere()) control.ToolTip = tool_tips ? row.ToolTip : Text{""};
      control.Called = row.Called.With({number});
      control.WhileEmpty = row.WhileEmpty.With({number});
      control.KeyName = row.Key;
    }
  }
}

}  // namespace zepril
