// What the screen reader finds in a text box of one line. Qt's own answer has two faults. Asked for the word behind the
// last letter, as by a screen reader when Control and a cursor key have led there, it looks for its end for ever, in Qt
// 6.4 as in 6.8. And Qt 6.4 reports an empty run of attributes for every single character, by which Orca 43 loses the
// last character of a box that gets the focus ("12" is read "1"); here one run spans the whole text.
#pragma once

class QAccessibleInterface;
class QLineEdit;

namespace ui {

// Qt owns it from then on.
QAccessibleInterface* NewLineEditInterface(QLineEdit& edit);

} // namespace ui
