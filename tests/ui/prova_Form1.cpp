// The start: what may go wrong before the window shows.

#include "Finestra.h"

#include "ErroreRuntime.h"
#include "LibreriaCarte.h"

#include <functional>
#include <new>

using namespace aiuti;

namespace {

// A surface on which the first step of a screen fails.
class TavoloGuasto : public Registratore
{
public:
    explicit TavoloGuasto(std::function<void()> guasto)
        : m_guasto(std::move(guasto))
    {
    }
    void Pulisci() override { m_guasto(); }

private:
    std::function<void()> m_guasto;
};

// Loads a window whose title screen fails like this; false when the program would end.
bool CaricaCon(const std::function<void()>& guasto)
{
    TavoloGuasto tavolo(guasto);
    Form1 finestra;
    finestra.DisegnaSu(tavolo);
    const bool caricata = finestra.Carica();
    cdtTerm();
    return caricata;
}

} // namespace

// Only the missing card library ends the program; whatever else fails, the window opens.
TEST(Form1, OgniAltroGuastoSiIgnora)
{
    Risponditore mano;
    for (const auto numero : {NumeroErrore::ChiamataNonValida, NumeroErrore::DiscoPieno,
                              NumeroErrore::PercorsoNonTrovato}) {
        EXPECT_TRUE(CaricaCon([numero] { throw ErroreRuntime(numero); }));
    }
    EXPECT_TRUE(CaricaCon([] { throw std::bad_alloc(); }));
    EXPECT_TRUE(mano.Visti.empty());
}

// The number decides, not the step in which it came.
TEST(Form1, LErrore53FinisceIlProgrammaDovunqueSorga)
{
    Risponditore mano;
    EXPECT_FALSE(CaricaCon([] { throw ErroreRuntime(NumeroErrore::FileNonTrovato); }));
    EXPECT_EQ(mano.Visti,
              std::vector{Esclamazione("La libreria CARDS.DLL non è presente nel sistema.")});
}
