// The tables of a screen, looked at while the program is compiled. Where one is wrong the compiler stops at a call of
// Wrong, which tells what it is.
#pragma once

#include "Design.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace ui {

// No constant expression calls this.
inline void Wrong(const char* /*what*/)
{
}

namespace tables {

// Whether this is the object name of the control: "Frame1(0)", or "Picture1" of one without index.
constexpr bool IsObjectName(std::string_view text, const ControlDesign& control)
{
    if (!text.starts_with(control.name)) {
        return false;
    }
    text.remove_prefix(control.name.size());
    if (control.index == noIndex) {
        return text.empty();
    }
    int index = 0;
    for (const char digit : text.substr(std::min<std::size_t>(text.size(), 1))) {
        index = digit == ')' ? index : 10 * index + digit - '0';
    }
    return text.size() > 2 && text.front() == '(' && text.back() == ')' && index == control.index;
}

// The access key of a caption in small letters, 0 where it has none.
constexpr char AccessKey(std::string_view caption)
{
    const std::size_t at = caption.find('&');
    if (at == std::string_view::npos) {
        return 0;
    }
    const char key = at + 1 < caption.size() ? caption[at + 1] : ' ';
    const bool isCapital = key >= 'A' && key <= 'Z';
    if (!isCapital && !(key >= 'a' && key <= 'z') && !(key >= '0' && key <= '9')) {
        Wrong("an access key is no letter or digit");
    }
    if (caption.find('&', at + 1) != std::string_view::npos) {
        Wrong("a caption has two access keys");
    }
    return isCapital ? static_cast<char>(key - 'A' + 'a') : key;
}

constexpr bool HasCaption(Kind kind)
{
    return kind == Kind::Button || kind == Kind::Label;
}

constexpr void CheckNames(std::span<const ControlDesign> table)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].name.empty()) {
            Wrong("a control has no name");
        }
        const auto isBefore = [&table, i](const ControlDesign& other) {
            return other.name == table[i].name && other.index == table[i].index - 1;
        };
        if (table[i].index > 0 && std::ranges::none_of(table, isBefore)) {
            Wrong("an array of controls has a gap");
        }
        const bool holds = table[i].kind == Kind::Frame || table[i].kind == Kind::Picture;
        for (std::size_t j = 0; j < table.size(); ++j) {
            if (j > i && table[j].name == table[i].name && table[j].index == table[i].index) {
                Wrong("two controls have one name and index");
            }
            if ((j < i || !holds) && IsObjectName(table[j].inside, table[i])) {
                Wrong("what holds a control comes after it, or is no frame or picture box");
            }
        }
        const auto isHolder = [&](const ControlDesign& other) { return IsObjectName(table[i].inside, other); };
        if (!table[i].inside.empty() && std::ranges::none_of(table, isHolder)) {
            Wrong("a control lies in one that does not exist");
        }
    }
}

constexpr bool HasTab(std::span<const ControlDesign> table, int tab)
{
    return std::ranges::count(table, tab, &ControlDesign::tab) == 1;
}

constexpr void CheckTabs(std::span<const ControlDesign> table)
{
    int stops = 0;
    for (const ControlDesign& stop : table) {
        if (stop.tab == noTab) {
            continue;
        }
        if (!HasTab(table, stops++)) {
            Wrong("a tab number is there twice or left out");
        }
        if (stop.accessibleName.empty() && (!HasCaption(stop.kind) || stop.text.empty())) {
            Wrong("a tab stop has no caption and no accessible name");
        }
        if (stop.kind == Kind::Frame || stop.kind == Kind::Picture || stop.kind == Kind::Line) {
            Wrong("a tab stop is nothing to stop at");
        }
        if (stop.kind == Kind::Label && !HasTab(table, stop.tab + 1)) {
            Wrong("a label with a place in the tab order leads nowhere");
        }
    }
}

// Each access key is one control's own, unless the keys are `shared`, and leads to a tab stop, or a label's to the
// next.
constexpr void CheckAccessKeys(std::span<const ControlDesign> table, bool shared)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        const char key = HasCaption(table[i].kind) ? AccessKey(table[i].text) : '\0';
        for (std::size_t j = i + 1; j < table.size() && key != 0 && !shared; ++j) {
            if (HasCaption(table[j].kind) && AccessKey(table[j].text) == key) {
                Wrong("two controls have one access key");
            }
        }
        if (key != 0 && table[i].tab == noTab) {
            Wrong("an access key leads to what is no tab stop");
        }
    }
}

constexpr void CheckScore(std::span<const ControlDesign> table)
{
    if (std::ranges::count(table, Speaking::Score, &ControlDesign::speaking) > 1) {
        Wrong("a screen has two scores");
    }
}

} // namespace tables

// The controls of a screen. Holds no copy: the table is a constant.
class Controls
{
public:
    enum class AccessKeys { Own, Shared };

    constexpr Controls() = default;

    template <class Table>
    consteval Controls(const Table& table, AccessKeys keys = AccessKeys::Own) // NOLINT(google-explicit-constructor)
        : m_table(table)
    {
        tables::CheckNames(m_table);
        tables::CheckTabs(m_table);
        tables::CheckAccessKeys(m_table, keys == AccessKeys::Shared);
        tables::CheckScore(m_table);
    }

    constexpr auto begin() const { return m_table.begin(); }
    constexpr auto end() const { return m_table.end(); }

private:
    std::span<const ControlDesign> m_table;
};

// The menus of a screen. Holds no copy either.
class Menus
{
public:
    constexpr Menus() = default;

    template <class Table>
    consteval Menus(const Table& table) : m_table(table) // NOLINT(google-explicit-constructor)
    {
        for (std::size_t i = 0; i < m_table.size(); ++i) {
            const MenuDesign& entry = m_table[i];
            if (entry.name.empty() || entry.caption.empty()) {
                Wrong("a menu entry has no name or caption");
            }
            tables::AccessKey(entry.caption);
            if (entry.depth < 0 || entry.depth > (i == 0 ? 0 : m_table[i - 1].depth + 1)) {
                Wrong("a menu entry belongs to none before it");
            }
            const auto isSame = [&entry](const MenuDesign& other) {
                return other.name == entry.name && other.index == entry.index;
            };
            if (std::ranges::count_if(m_table, isSame) != 1) {
                Wrong("two menu entries have one name and index");
            }
            const auto isChecked = [&entry](const MenuDesign& other) {
                return other.name == entry.name && other.checking == Checking::Checked;
            };
            if (entry.checking != Checking::None && std::ranges::count_if(m_table, isChecked) != 1) {
                Wrong("not exactly one entry of an array is checked");
            }
        }
    }

    constexpr bool IsEmpty() const { return m_table.empty(); }
    constexpr std::span<const MenuDesign> Entries() const { return m_table; }

private:
    std::span<const MenuDesign> m_table;
};

// What happens to the controls when the window changes its size.
enum class Resizing {
    Scale, // everything grows and shrinks by one factor, in the middle of the window
    Own,   // the screen places its controls itself, in Form_Resize
};

struct FormDesign
{
    std::string_view name = {};
    std::string_view caption = {};
    int width = 0; // of the client area, in twips
    int height = 0;
    Controls controls = {};
    Menus menus = {};
    std::string_view keys = {}; // the accessible description: keys that no menu names
    Resizing resizing = Resizing::Scale;
};

} // namespace ui
