// The start: what may go wrong before the window shows, and the language of numbers.

#include "Finestra.h"

#include "ErroreRuntime.h"
#include "LibreriaCarte.h"

#include <clocale>
#include <cstdlib>
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

TEST(MenuSistema, IlComandoSonoSediciBitAllargatiColSegno)
{
    const auto sedici = static_cast<std::int16_t>(0xF000); // the Size command
    EXPECT_EQ(ComandoDimensiona, static_cast<std::uint32_t>(std::int32_t{sedici}));
    EXPECT_EQ(PerComando, 0U);
}

// Only the missing card library ends the program; whatever else fails, the window opens.
TEST(Avvio, OgniAltroGuastoSiIgnora)
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
TEST(Avvio, LErrore53FinisceIlProgrammaDovunqueSorga)
{
    Risponditore mano;
    EXPECT_FALSE(CaricaCon([] { throw ErroreRuntime(NumeroErrore::FileNonTrovato); }));
    EXPECT_EQ(mano.Visti,
              std::vector{Esclamazione("La libreria CARDS.DLL non è presente nel sistema.")});
}

// Qt takes the user's locale for all of the C library; numbers keep their point.
TEST(Avvio, INumeriNonSeguonoLaLinguaDellUtente)
{
    const char* lingua = std::getenv("LC_ALL");
    if (lingua != nullptr && std::string(lingua) != "C") {
        EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), lingua); // it was really taken
    }
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}
