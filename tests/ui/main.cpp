// All tests of the window in one process: one application object, no display.

#include "Applicazione.h"
#include "LibreriaCarte.h"

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleTest(&argc, argv);
    Applicazione applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ImpostaFileCarte(SCALVINO_RISORSE "/carte.svg");
    return RUN_ALL_TESTS();
}
