// Every window of the program, one after another, open as a person has it in front.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

namespace parvik::prova {

/// Calls `prova` with each, the main window with all its bars and panels among them, and the box at the
/// caret, which is a window of its own for whoever is in it. Fails the test when one of them does not open.
void PerOgniFinestra(const std::function<void(const std::string& nome, QWidget& finestra)>& prova);

}  // namespace parvik::prova
