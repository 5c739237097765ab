// Tables with nothing wrong, of the same form as the wrong ones that must not compile.
#include "Tables.h"

namespace {

using enum ui::Checking;
using enum ui::Kind;

constexpr ui::ControlDesign rows[]{
    {.name = "Caja", .accessibleName = "Caja", .tab = 0},
    {.kind = Frame, .name = "Frame1", .index = 0},
    {.kind = Line, .name = "Line1", .inside = "Frame1(0)"},
    {.kind = Picture, .name = "Picture1"},
    {.kind = Button, .name = "A", .text = "&Hecho", .tab = 1, .inside = "Picture1"},
    {.kind = Label, .name = "Label1", .text = "&Partes", .tab = 2},
    {.name = "Otra", .accessibleName = "Otra", .tab = 3, .speaking = ui::Speaking::Score},
};
constexpr ui::ControlDesign shared[]{
    {.kind = Button, .name = "A", .index = 0, .text = "&Hecho", .tab = 0},
    {.kind = Button, .name = "A", .index = 1, .text = "Otro &hecho", .tab = 1},
};
constexpr ui::MenuDesign entries[]{
    {0, "Opc", ui::noIndex, "&Opciones"},
    {1, "Lis", 0, "Uno", Checked},
    {1, "Lis", 1, "Dos", Unchecked},
    {0, "Sal", ui::noIndex, "&Salir"},
};

[[maybe_unused]] constexpr ui::FormDesign right{.controls = rows, .menus = entries};
[[maybe_unused]] constexpr ui::FormDesign alsoRight{.controls = {shared, ui::Controls::AccessKeys::Shared}};

static_assert(ui::tables::IsObjectName("Frame1(12)", {.name = "Frame1", .index = 12}));
static_assert(!ui::tables::IsObjectName("Frame1(12)", {.name = "Frame1", .index = 1}));
static_assert(!ui::tables::IsObjectName("Frame1(1)", {.name = "Frame1"}));
static_assert(!ui::tables::IsObjectName("Frame1", {.name = "Frame1", .index = 0}));
static_assert(ui::tables::AccessKey("Otro &Hecho") == 'h' && ui::tables::AccessKey("Hasta &10") == '1');

} // namespace
