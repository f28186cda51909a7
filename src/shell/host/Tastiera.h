#pragma once

class QAbstractButton;
class QWidget;

namespace zuvora {

// What the keyboard does in every window of the program.

// Enter in `campo`, or in a field inside of it, presses `bottone`. Without this it presses the main action (Button's
// role) of the innermost frame that has one; where a frame has several, the nearest.
void bottoneDi(QWidget &campo, QAbstractButton &bottone);

// The button that Enter presses while `fuoco` has the focus: itself when it is a button, else the one that saves the
// field. Null when there is none, or when it can't be pressed now.
QAbstractButton *bottonePerInvio(QWidget *fuoco);

// Sets the order of Tab as the window is read: line by line, each frame as a whole at its place.
void ordinaFuochi(QWidget &finestra);

// Where the focus stands when a window or page opens: the first field that can be edited, else the main action, else
// what comes first. Null when nothing takes the focus.
QWidget *primoFuoco(QWidget &radice);

} // namespace zuvora
