// All tests of the window in one process: one application object, no display.

#include "Applicazione.h"
#include "LibreriaCarte.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

// The platform without a display says at every box that it has no window manager.
void Avvisi(QtMsgType /*tipo*/, const QMessageLogContext& /*dove*/, const QString& testo)
{
    if (!testo.contains(QLatin1String("propagateSizeHints"))) {
        std::fprintf(stderr, "%s\n", qPrintable(testo));
    }
}

} // namespace

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    qInstallMessageHandler(Avvisi);
    testing::InitGoogleTest(&argc, argv);
    Applicazione applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ImpostaFileCarte(SCALVINO_RISORSE "/carte.svg");
    return RUN_ALL_TESTS();
}
