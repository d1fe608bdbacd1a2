// Windows that keep their size whatever the desktop asks. Used by Form1.cpp and Messaggi.cpp.
#pragma once

class QWidget;

// From now on this window, which has a fixed size, answers every attempt of the desktop to maximise
// it or to spread it over the whole screen by standing there anew in its own size: a Wayland
// compositor asks windows of a fixed size, too, and ends the connection, and with it the program,
// when they do not follow. Content, focus and what runs in the window stay as they are; the
// compositor may give the window another place. Without effect under other systems, which never
// ask.
void TieniMisuraFissa(QWidget& finestra);
