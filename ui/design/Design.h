// A screen as data: its window, its controls and its menus. Form builds them. What is wrong in such a table is found
// while it is compiled (Tables.h), or by Form.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ui {

// A position inside a screen's client area or a length, in twips (1/1440 inch).
struct Place
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

inline constexpr int twipsPerPixel = 15; // at 96 dots per inch

// A colour as the screens write it, 0xBBGGRR.
enum class Color : std::uint32_t {
    Red = 0x0000FF,
    Green = 0x00FF00,
    Yellow = 0x00FFFF,
    Cyan = 0xFFFF00,
    White = 0xFFFFFF
};

inline constexpr int noIndex = -1;
inline constexpr int noTab = -1;

// A text area is a text box of several lines. A picture box holds other controls and has no focus of its own.
enum class Kind { TextBox, TextArea, Button, Label, Frame, Picture, Line };

// A locked box takes focus and caret, but no typing. A box for keys only is changed by what its key handlers do and by
// nothing else: paste, cut, drop and the like are undone with a beep.
enum class Typing { Editable, Locked, KeysOnly };

// Whatever the program writes to a spoken box or label is announced. The score is told by F4; a screen has one at most.
enum class Speaking { Silent, Spoken, Score };

// The desktop's colours for text boxes, or those for selected text.
enum class Coloring { Plain, Selection };

enum class Alignment { Left, Center };

enum class Weight { Normal, Bold };

struct ControlDesign
{
    Kind kind = Kind::TextBox;
    std::string_view name = {};
    int index = noIndex;
    std::string_view text = {};           // initial text, or caption with "&" before the access key
    std::string_view accessibleName = {}; // empty where the caption serves
    std::string_view keys = {};           // the accessible description: keys that no menu names
    Place place = {};                     // in the client area, or in what the control is `inside`
    int tab = noTab;                      // position in the tab order
    std::string_view inside = {};         // the object name of the frame or picture box that holds the control
    Typing typing = Typing::Locked;
    Speaking speaking = Speaking::Silent;
    Coloring coloring = Coloring::Plain;
    Alignment alignment = Alignment::Left;
    std::optional<Color> color = {}; // the face of a button, the background of a frame
    std::string_view font = "Arial";
    double points = 12;
    Weight weight = Weight::Normal;
    int coveredTop = 0; // twips that a neighbour in front covers, and in which nothing is painted
    int coveredBottom = 0;
};

// The row of a button in a table of controls.
constexpr ControlDesign ButtonDesign(std::string_view name, int index, std::string_view text, const Place& place,
                                     int tab, Color color)
{
    return {
        .kind = Kind::Button, .name = name, .index = index, .text = text, .place = place, .tab = tab, .color = color};
}

enum class Checking { None, Unchecked, Checked };

// Menus are listed as they are read: an entry of depth n + 1 belongs to the last one of depth n before it. Entries with
// the same name and an index are one array, of which exactly one is checked.
struct MenuDesign
{
    int depth = 0;
    std::string_view name = {};
    int index = noIndex;
    std::string_view caption = {};
    Checking checking = Checking::None;
    int functionKey = 0; // 1 to 12 for F1 to F12
};

} // namespace ui
