// The help page: the program's own bytes, written anew at every request, never over what is not
// ours.

#include "Finestra.h"
#include "modCarte.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <optional>

using namespace aiuti;
namespace fs = std::filesystem;

namespace {

// The last cell of the row of the page that begins with this cell; empty without such a row.
std::string UltimaCella(const std::string& pagina, const std::string& prima)
{
    const auto inizio = pagina.find("<tr><td>" + prima + "</td>");
    if (inizio == std::string::npos) return {};
    const auto riga = pagina.substr(inizio, pagina.find("</tr>", inizio) - inizio);
    const auto cella = riga.rfind("\">");
    return riga.substr(cella + 2, riga.rfind("</td>") - cella - 2);
}

// The system's temporary folder while this lives.
class CartellaTemporanea
{
public:
    explicit CartellaTemporanea(const std::string& percorso)
    {
        if (const char* prima = std::getenv("TMPDIR")) m_prima = prima;
        ::setenv("TMPDIR", percorso.c_str(), 1);
    }
    ~CartellaTemporanea()
    {
        if (m_prima) ::setenv("TMPDIR", m_prima->c_str(), 1);
        else ::unsetenv("TMPDIR");
    }
    CartellaTemporanea(const CartellaTemporanea&) = delete;
    CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;

private:
    std::optional<std::string> m_prima;
};

} // namespace

TEST_F(Finestra, LaGuidaSiScriveESiApre)
{
    const auto percorso = ambiente.Cartella.Nome() + "scalvino.htm";
    Clicca("cmdHelp");
    EXPECT_EQ(ambiente.Aperti, std::vector<std::string>{percorso});
    EXPECT_EQ(ambiente.Stili, std::vector{StileFinestra::MassimizzataConFuoco});
    const std::string pagina = Byte(percorso);
    EXPECT_EQ(pagina.size(), 12936U);
    EXPECT_EQ(pagina, Byte(SCALVINO_RISORSE "/scalvino.htm"));
}

TEST_F(Finestra, DueRichiesteScrivonoDueVolte)
{
    const auto percorso = ambiente.Cartella.Nome() + "scalvino.htm";
    Clicca("cmdHelp");
    std::ofstream(percorso, std::ios::app) << "aggiunta";
    Clicca("cmdHelp");
    EXPECT_EQ(ambiente.Aperti, (std::vector<std::string>{percorso, percorso}));
    EXPECT_EQ(Byte(percorso), Byte(SCALVINO_RISORSE "/scalvino.htm"));
    EXPECT_EQ(ambiente.Cartella.Contenuto(), std::vector<std::string>{"scalvino.htm"});
}

TEST_F(Finestra, SeLaGuidaNonSiPuoScrivereNonSuccedeNulla)
{
    Risponditore mano;
    fs::create_directory(ambiente.Cartella.File("scalvino.htm"));
    Clicca("cmdHelp");
    Stampe::AmbienteInUso.Cartella = "/cartella/che/non/esiste/";
    Clicca("cmdHelp");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(mano.Visti.empty());
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_EQ(Gioco(), "100");
}

TEST_F(Finestra, SenzaCartellaNonSuccedeNulla)
{
    Risponditore mano;
    const CartellaDiProva qui;
    const CartellaTemporanea nessuna(qui.Nome() + "non/esiste");
    const fs::path prima = fs::current_path();
    fs::current_path(qui.Nome());
    Stampe::AmbienteInUso.Cartella.clear();
    Clicca("cmdHelp");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(mano.Visti.empty());
    EXPECT_TRUE(qui.Contenuto().empty());
    fs::current_path(prima);
}

TEST_F(Finestra, TornataLaCartellaLaGuidaSiApre)
{
    const CartellaDiProva qui;
    const CartellaTemporanea tornera(qui.Nome() + "tmp");
    Stampe::AmbienteInUso.Cartella.clear();
    Clicca("cmdHelp");
    EXPECT_TRUE(ambiente.Aperti.empty());
    fs::create_directory(qui.Nome() + "tmp");
    Clicca("cmdHelp");
    EXPECT_EQ(ambiente.Aperti, std::vector<std::string>{qui.Nome() + "tmp/scalvino.htm"});
    EXPECT_TRUE(finestra->close());
    EXPECT_TRUE(fs::is_empty(qui.Nome() + "tmp"));
}

TEST_F(Finestra, LaGuidaNonDisturbaLaPartita)
{
    Clicca("cmdMescola");
    const auto passi = registro->Passi;
    Clicca("cmdHelp");
    EXPECT_EQ(registro->Passi, passi);
    EXPECT_EQ(Gioco(), "011");
}

TEST_F(Finestra, ILimitiDellaGuidaSonoQuelliDelProgramma)
{
    const std::string pagina = Byte(SCALVINO_RISORSE "/scalvino.htm");
    for (const std::size_t forma : {FormaHtml, FormaPdf, FormaTxt}) {
        Scegli(forma, false);
        Risponditore mano;
        Scrivi("501");
        Clicca("cmdTaglie");
        EXPECT_EQ(mano.Visti.size(), 1U);
        // The program has just put its limit into the field.
        EXPECT_EQ(UltimaCella(pagina, Opzione(forma)->text().toStdString()),
                  Numero()->text().toStdString());
    }
}

TEST(Guida, LeProbabilitaSonoQuelleEsatte)
{
    const std::string pagina = Byte(SCALVINO_RISORSE "/scalvino.htm");
    const auto quota = [](std::string_view esito) {
        for (const auto& esatta : modCarte::Esiti<double>) {
            if (esatta.Nome != esito) continue;
            const auto centesimi = std::to_string(std::lround(esatta.QuotaPrimoColpo * 10000));
            return centesimi.substr(0, centesimi.size() - 2) + "," +
                   centesimi.substr(centesimi.size() - 2) + "%";
        }
        return std::string();
    };
    for (const auto& [riga, esito] :
         {std::pair("Vince il Nero, oppure vince il Rosso (ciascuno)", "VinceNero"),
          std::pair("Vince il Colore, oppure vince l'Inverso (ciascuno)", "Colore"),
          std::pair("Colpo pari, compreso il 31 après", "Pari"),
          std::pair("31 après", "TrentunoApres")}) {
        EXPECT_EQ(UltimaCella(pagina, riga), quota(esito)) << riga;
    }
}
