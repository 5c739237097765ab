// Changes of boxes that are not in focus.
#pragma once

#include <QAccessible>
#include <QScopeGuard>

namespace ui {

// Runs `change` on a box that is not in focus without a word to the screen reader. Qt tells of every caret and text;
// where the focus follows at once, the reader takes that for the arrival in the box and says nothing of it, or reads
// the new text as if it had been typed.
template <class Change>
void Silently(Change change)
{
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    const auto restore = qScopeGuard([handler] { QAccessible::installUpdateHandler(handler); });
    change();
}

} // namespace ui
