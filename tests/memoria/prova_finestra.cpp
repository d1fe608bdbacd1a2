// The window when memory runs out in the middle of a report, at every single request: one message
// says so, the closing steps follow, and nothing is left behind.

#include "Applicazione.h"
#include "Finestra.h"
#include "MemoriaFinita.h"
#include "modCarte.h"

#include <QApplication>

#include <algorithm>

using namespace aiuti;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t Campioni = 15;
#else
constexpr std::uint64_t Campioni = 60;
#endif

class UnaFinestra : public Finestra
{
public:
    UnaFinestra() { modCarte::AvviaSeme(3, 1); }

    // Asks for a full report with memory running out at this request, counted from its first shoe:
    // before that Qt is at work, whose own requests are not meant here. Returns how many there
    // were until the report was finished, or until now.
    std::uint64_t Stampa(std::size_t forma, std::uint64_t quale)
    {
        auto& inUso = Stampe::AmbienteInUso;
        inUso.PreparaTaglia = [quale](std::int64_t taglia) {
            if (taglia == 1) memoria::Guasta(quale);
            modCarte::MescolaMazzo();
        };
        std::uint64_t richieste = 0;
        inUso.Apri = [this, &richieste](const std::string& percorso, StileFinestra) {
            richieste = memoria::Ripara();
            ambiente.Aperti.push_back(percorso);
        };
        Scegli(forma, false);
        Scrivi("2");
        auto* applicazione = static_cast<Applicazione*>(QCoreApplication::instance());
        QTimer::singleShot(0, applicazione, [this] {
            Clicca("cmdTaglie");
            QApplication::exit();
        });
        QApplication::exec();
        memoria::Ripara();
        Codice = applicazione->CodiceUscita();
        applicazione->DimenticaGuasto();
        return richieste;
    }

    using Finestra::ambiente;
    using Finestra::finestra;
    int Codice = 0;

private:
    void TestBody() override {}
};

// False when there were not that many requests.
bool ControllaGuasto(std::size_t forma, std::uint64_t quale)
{
    SCOPED_TRACE("request " + std::to_string(quale));
    UnaFinestra prova;
    Risponditore mano;
    const std::uint64_t richieste = prova.Stampa(forma, quale);
    if (prova.Codice == 0 && richieste < quale) return false;
    EXPECT_EQ(mano.Visti.size(), 1U);
    if (mano.Visti.empty()) return false;
    EXPECT_EQ(mano.Visti[0].Titolo, "Scalvino");
    EXPECT_EQ(mano.Visti[0].Testo, "Errore 7: Memoria esaurita.\nIl programma si chiude.");
    EXPECT_EQ(mano.Visti[0].Icona, QMessageBox::Critical);
    EXPECT_EQ(prova.Codice, Applicazione::UscitaErrore);
    EXPECT_TRUE(prova.finestra->Chiusa());
    EXPECT_FALSE(prova.finestra->isVisible());
    EXPECT_TRUE(prova.ambiente.Aperti.empty());
    EXPECT_TRUE(prova.ambiente.Cartella.Contenuto().empty());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    return true;
}

void EsaurisciOvunque(std::size_t forma)
{
    std::uint64_t richieste = 0;
    {
        UnaFinestra prova;
        richieste = prova.Stampa(forma, 0);
        EXPECT_EQ(prova.Codice, 0);
        EXPECT_EQ(prova.ambiente.Aperti.size(), 1U);
    }
    ASSERT_GT(richieste, 50U);
    const std::uint64_t passo = std::max<std::uint64_t>(1, richieste / Campioni);
    // Somewhat fewer are needed when the engine has its room from the run before.
    std::uint64_t k = 1;
    while (ControllaGuasto(forma, k) && !testing::Test::HasFailure()) {
        k += k < Campioni / 3 ? 1 : passo;
    }
    EXPECT_GT(k, richieste / 2);
    EXPECT_LE(k, richieste + passo);
}

} // namespace

TEST(MemoriaFinestra, LaPaginaIntera)
{
    EsaurisciOvunque(FormaHtml);
}

TEST(MemoriaFinestra, IlDocumentoIntero)
{
    EsaurisciOvunque(FormaPdf);
}

TEST(MemoriaFinestra, IlTestoIntero)
{
    EsaurisciOvunque(FormaTxt);
}
