// The value of one setting: where it stands in its struct, how the profile keeps it, and what it can be. A
// row of a table of settings holds one; the functions in `setting` make one from a member, as
// Truth(&Settings::m_bTrackAlarm), or from an element of a member that is an array. What a profile holds and
// the value cannot be leaves it as it is.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/Profile.h"
#include "settings/SettingRule.h"
#include "settings/TextRule.h"

namespace veerwatch {

/// The whole numbers from Least to Most.
struct WholeRange {
  std::int16_t Least;
  std::int16_t Most;

  bool Holds(std::int16_t number) const { return number >= Least && number <= Most; }
};

template <class Struct>
struct SettingValue {
  /// Overlays what the profile holds under a key.
  std::function<void(const Profile&, std::string_view section, std::string_view key, Struct&)> Read;
  /// Sets a key.
  std::function<void(Profile&, std::string_view section, std::string_view key, const Struct&)> Write;
  std::string Range;      ///< what it can be, in words
  bool FreeText = false;  ///< the user writes it: it may be the name of anything

  // Of a number, for entry boxes.
  float Struct::*Member = nullptr;  ///< null for what is no plain number
  NumberRule Rule = kAnyNumber;     ///< what numbers may be entered
  std::optional<WholeRange> Whole;  ///< what a whole number can be
};

namespace setting {

/// An element of a member that is an array, as Element{&TackSettings::Rate, 1}.
template <class Struct, class Item, std::size_t Count>
struct Element {
  std::array<Item, Count> Struct::*Member;
  std::size_t Index;
};

template <class Struct, class Item, std::size_t Count>
Element(std::array<Item, Count> Struct::*, std::size_t) -> Element<Struct, Item, Count>;

/// The struct that a place is in, and what stands there.
template <class Where>
struct PlaceOf;
template <class S, class I>
struct PlaceOf<I S::*> {
  using Struct = S;
  using Item = I;
};
template <class S, class I, std::size_t Count>
struct PlaceOf<Element<S, I, Count>> {
  using Struct = S;
  using Item = I;
};
template <class Where>
using StructOf = typename PlaceOf<Where>::Struct;
template <class Where>
using ItemOf = typename PlaceOf<Where>::Item;

template <class Struct, class S, class I>
auto& At(Struct& all, I S::*member) {
  return all.*member;
}
template <class Struct, class S, class I, std::size_t Count>
auto& At(Struct& all, const Element<S, I, Count>& element) {
  return (all.*element.Member)[element.Index];
}

/// A truth value, "True" or "False".
template <class Where>
SettingValue<StructOf<Where>> Truth(Where where) {
  using Struct = StructOf<Where>;
  SettingValue<Struct> value;
  value.Range = "True, False";
  value.Read = [where](const Profile& profile, std::string_view section, std::string_view key, Struct& all) {
    profile.ProfileGet(section, key, At(all, where));
  };
  value.Write = [where](Profile& profile, std::string_view section, std::string_view key, const Struct& all) {
    profile.ProfileSet(section, key, At(all, where));
  };
  return value;
}

/// A number by `entered`, in a member that is a float or can be narrowed from one that the rule takes. A
/// profile may hold more than may be entered: `read` is the rule there.
template <class Where>
SettingValue<StructOf<Where>> Number(Where where, const NumberRule& entered, const NumberRule& read) {
  using Struct = StructOf<Where>;
  using Item = ItemOf<Where>;
  SettingValue<Struct> value;
  value.Range = entered.Range;
  value.Rule = entered;
  if constexpr (std::is_same_v<Where, float Struct::*>) {
    value.Member = where;
  }
  value.Read = [where, read](const Profile& profile, std::string_view section, std::string_view key,
                             Struct& all) {
    auto number = static_cast<float>(At(all, where));
    profile.ProfileGet(section, key, number);
    if (const auto taken = read.Take(number)) {
      At(all, where) = static_cast<Item>(*taken);
    }
  };
  value.Write = [where](Profile& profile, std::string_view section, std::string_view key, const Struct& all) {
    profile.ProfileSet(section, key, static_cast<float>(At(all, where)));
  };
  return value;
}

template <class Where>
SettingValue<StructOf<Where>> Number(Where where, const NumberRule& rule) {
  return Number(where, rule, rule);
}

/// A whole number from `least` to `most`, in a member of 16 bits or an enumeration.
template <class Where>
SettingValue<StructOf<Where>> Whole(Where where, std::int16_t least, std::int16_t most) {
  using Struct = StructOf<Where>;
  using Item = ItemOf<Where>;
  SettingValue<Struct> value;
  value.Range = std::to_string(least) + " to " + std::to_string(most);
  value.Whole = WholeRange{least, most};
  value.Read = [=](const Profile& profile, std::string_view section, std::string_view key, Struct& all) {
    auto number = static_cast<std::int16_t>(At(all, where));
    profile.ProfileGet(section, key, number, least, most);
    At(all, where) = static_cast<Item>(number);
  };
  value.Write = [where](Profile& profile, std::string_view section, std::string_view key, const Struct& all) {
    profile.ProfileSet(section, key, static_cast<std::int16_t>(At(all, where)));
  };
  return value;
}

/// One of the values from 0 to `last`, kept as its number.
template <class Where>
SettingValue<StructOf<Where>> Choice(Where where, ItemOf<Where> last) {
  return Whole(where, 0, static_cast<std::int16_t>(last));
}

/// One of the values from 0 on of an enumeration or a whole number, kept by its name; the case of the letters
/// A to Z does not count.
template <class Where>
SettingValue<StructOf<Where>> Named(Where where, std::vector<std::string> names) {
  using Struct = StructOf<Where>;
  using Item = ItemOf<Where>;
  SettingValue<Struct> value;
  for (const std::string& name : names) {
    value.Range.append(value.Range.empty() ? "" : ", ").append(name);
  }
  value.Read = [where, names](const Profile& profile, std::string_view section, std::string_view key,
                              Struct& all) {
    std::string text;
    profile.ProfileGet(section, key, text);
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (SameName(text, names[i])) {
        At(all, where) = static_cast<Item>(i);
      }
    }
  };
  value.Write = [where, names = std::move(names)](Profile& profile, std::string_view section,
                                                  std::string_view key, const Struct& all) {
    const auto index = static_cast<std::size_t>(At(all, where));
    assert(index < names.size());
    profile.ProfileSet(section, key, names[index]);
  };
  return value;
}

/// Any text that is not empty; `what` says what it is.
template <class Where>
SettingValue<StructOf<Where>> Text(Where where, const std::string& what) {
  using Struct = StructOf<Where>;
  SettingValue<Struct> value;
  value.Range = what;
  value.FreeText = true;
  value.Read = [where](const Profile& profile, std::string_view section, std::string_view key, Struct& all) {
    profile.ProfileGet(section, key, At(all, where));
  };
  value.Write = [where](Profile& profile, std::string_view section, std::string_view key, const Struct& all) {
    profile.ProfileSet(section, key, std::string_view(At(all, where)));
  };
  return value;
}

/// A text that `rule` takes.
template <class Where>
SettingValue<StructOf<Where>> Text(Where where, const TextRule& rule) {
  using Struct = StructOf<Where>;
  SettingValue<Struct> value = Text(where, std::string(rule.Range));
  value.Read = [where, rule](const Profile& profile, std::string_view section, std::string_view key,
                             Struct& all) {
    std::string text;
    profile.ProfileGet(section, key, text);
    if (rule.Takes(text)) {
      At(all, where) = text;
    }
  };
  return value;
}

/// Any text; empty is one, too, and what a profile without the key has. `what` says what it is.
template <class Where>
SettingValue<StructOf<Where>> OptionalText(Where where, const std::string& what) {
  using Struct = StructOf<Where>;
  SettingValue<Struct> value = Text(where, what);
  value.Read = [where](const Profile& profile, std::string_view section, std::string_view key, Struct& all) {
    At(all, where).clear();
    profile.ProfileGet(section, key, At(all, where));
  };
  return value;
}

}  // namespace setting

}  // namespace veerwatch
