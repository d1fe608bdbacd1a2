// The system menu of a window and the common controls: what only one of the desktops has. Elsewhere
// these do nothing; there a window of fixed size has no Size command in the first place.
#pragma once

#include <cstdint>

// A menu of the window manager; 0 is none.
using ManigliaMenu = std::uintptr_t;

// The Size command, a 16-bit constant (F000) widened with its sign. On purpose not F000 itself:
// what the system is asked decides which commands the window has there.
inline constexpr std::uint32_t ComandoDimensiona = 0xFFFFF000;

// A command is named by its identifier, not by its place.
inline constexpr std::uint32_t PerComando = 0;

// Makes the desktop's own look of buttons and frames available. Before the first window.
void InizializzaControlliComuni();

// The system menu of the window with this native handle, its own and not a fresh copy; 0 where
// there is none.
ManigliaMenu MenuDiSistema(std::uintptr_t finestra);

// Removes a command from a menu. No menu: no effect.
void TogliComando(ManigliaMenu menu, std::uint32_t comando, std::uint32_t come);
