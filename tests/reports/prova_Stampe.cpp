// Whole reports against the reviewed golden files, and the facts about each layout.

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "Stampe.h"
#include "Stampe_Comune.h"
#include "Stampe_Stile.h"
#include "Windows1252.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

using namespace Stampe;
using aiuti::AmbienteDiProva;
using aiuti::Byte;
using aiuti::Dorato;

namespace {

struct Tipo
{
    const char* Nome;
    Separatori SeparatoriNumeri;
};

// The narrow no-break space stands for the regions that group with it.
const Tipo It{"it", {",", "."}};
const Tipo C{"c", {".", ""}};
const Tipo Nbsp{"nbsp", {",", "\u202F"}};

struct Caso
{
    const char* Mazzi;
    Tipo Numeri;
    bool PienoHtml = true;
};

const std::vector<Caso> Casi = {{"uno_trentuno", It}, {"uno_liscio", C},    {"tre", Nbsp},
                                {"dodici", It},       {"dodici", C, false}, {"dodici", Nbsp, false},
                                {"otto", It}};

double Prepara(AmbienteDiProva& prova, const Caso& caso)
{
    const auto mazzi = aiuti::MazziDorati(std::string(caso.Mazzi) + ".mazzi");
    prova.Distribuisci(mazzi);
    AmbienteInUso.SeparatoriNumeri = caso.Numeri.SeparatoriNumeri;
    return static_cast<double>(mazzi.size());
}

std::string NomeDorato(const Caso& caso, const char* forma, const char* estensione)
{
    return std::string(caso.Mazzi) + "." + caso.Numeri.Nome + "." + forma + "." + estensione;
}

// A full report of given shoes as lines.
std::vector<std::string> RigheTxt(const char* mazzi, Separatori cifre = {",", "."})
{
    AmbienteDiProva prova;
    const double taglie = Prepara(prova, {mazzi, {"", std::move(cifre)}});
    StampaTxt(taglie);
    return aiuti::Righe(Byte(prova.Cartella.File("taglie.txt")));
}

std::string Html(const char* mazzi)
{
    AmbienteDiProva prova;
    StampaHtml(Prepara(prova, {mazzi, It}));
    return Byte(prova.Cartella.File("taglie.htm"));
}

std::size_t Conta(const std::string& testo, const std::string& pezzo)
{
    std::size_t volte = 0;
    for (auto p = testo.find(pezzo); p != std::string::npos; p = testo.find(pezzo, p + 1)) ++volte;
    return volte;
}

bool Contiene(const std::vector<std::string>& righe, const std::string& utf8)
{
    return std::find(righe.begin(), righe.end(), InWindows1252(utf8)) != righe.end();
}

} // namespace

TEST(StampaTxt, UgualeAiReportDorati)
{
    for (const auto& caso : Casi) {
        AmbienteDiProva prova;
        ASSERT_TRUE(StampaTxt(Prepara(prova, caso)));
        const auto nome = NomeDorato(caso, "pieno", "txt");
        EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) == Dorato(nome)) << nome;
    }
}

TEST(StatisticheTxt, UgualeAiReportDorati)
{
    for (const auto& caso : Casi) {
        AmbienteDiProva prova;
        ASSERT_TRUE(StatisticheTxt(Prepara(prova, caso), {}));
        const auto nome = NomeDorato(caso, "statistiche", "txt");
        EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) == Dorato(nome)) << nome;
    }
}

TEST(StampaHtml, UgualeAiReportDorati)
{
    for (const auto& caso : Casi) {
        if (!caso.PienoHtml) continue;
        AmbienteDiProva prova;
        ASSERT_TRUE(StampaHtml(Prepara(prova, caso)));
        const auto nome = NomeDorato(caso, "pieno", "htm");
        EXPECT_TRUE(Byte(prova.Cartella.File("taglie.htm")) == Dorato(nome)) << nome;
    }
}

TEST(StatisticheHtml, UgualeAiReportDorati)
{
    for (const auto& caso : Casi) {
        AmbienteDiProva prova;
        ASSERT_TRUE(StatisticheHtml(Prepara(prova, caso), {}));
        const auto nome = NomeDorato(caso, "statistiche", "htm");
        EXPECT_TRUE(Byte(prova.Cartella.File("taglie.htm")) == Dorato(nome)) << nome;
    }
}

TEST(ReportDorati, IBlocchiScrittiAManoCiSono)
{
    // The blocks derived by hand stand between lines "[...]" in the order of the report.
    const std::string txt = Dorato("uno_trentuno.it.pieno.txt");
    const std::string aMano = Dorato("a_mano.txt");
    const auto taglio = aMano.find("[...]");
    ASSERT_NE(taglio, std::string::npos);
    const std::string primo = aMano.substr(0, taglio);
    const std::string secondo = aMano.substr(aMano.find('\n', taglio) + 1);
    ASSERT_GT(primo.size(), 200U);
    ASSERT_GT(secondo.size(), 200U);
    EXPECT_NE(txt.find(primo), std::string::npos);
    EXPECT_NE(txt.find(secondo), std::string::npos);
    const std::string htm = Dorato("a_mano.htm");
    ASSERT_GT(htm.size(), 1000U);
    EXPECT_NE(Dorato("uno_trentuno.it.pieno.htm").find(htm), std::string::npos);
}

TEST(Stampe, SiApronoFinitiConIlLoroStile)
{
    AmbienteDiProva prova;
    const double taglie = Prepara(prova, Casi[2]);
    StampaTxt(taglie);
    StatisticheTxt(taglie, {});
    StampaHtml(taglie);
    StatisticheHtml(taglie, {});
    const std::string txt = prova.Cartella.Nome() + "taglie.txt";
    const std::string htm = prova.Cartella.Nome() + "taglie.htm";
    EXPECT_EQ(prova.Aperti, (std::vector<std::string>{txt, txt, htm, htm}));
    using enum StileFinestra;
    EXPECT_EQ(prova.Stili,
              (std::vector<StileFinestra>{NormaleConFuoco, NormaleConFuoco, MassimizzataConFuoco,
                                          MassimizzataConFuoco}));
    EXPECT_EQ(prova.Cartella.Contenuto(), (std::vector<std::string>{"taglie.htm", "taglie.txt"}));
}

TEST(Stampe, RestituisconoITotaliDiTutteLeForme)
{
    AmbienteDiProva prova;
    const double taglie = Prepara(prova, Casi[3]);
    const auto totali = SoloTotali(taglie, {});
    ASSERT_TRUE(totali);
    EXPECT_EQ(StampaTxt(taglie), totali);
    EXPECT_EQ(StatisticheTxt(taglie, {}), totali);
    EXPECT_EQ(StampaHtml(taglie), totali);
    EXPECT_EQ(StatisticheHtml(taglie, {}), totali);
    EXPECT_EQ(totali->Colpi, 342);
    EXPECT_EQ(totali->CarteUsate, 3627);
}

TEST(StampaTxt, SoloIColpiMostratiENelConteggioLoStesso)
{
    // A short final record: k - 2 rows, and the line "Colpi" says the same.
    const auto righe = RigheTxt("uno_trentuno");
    const auto mazzo = aiuti::MazziDorati("uno_trentuno.mazzi").front();
    modCarte::ImpostaMazzo(mazzo);
    modCarte::GiocaTaglia();
    const auto m = std::to_string(modCarte::Colpi.size() - 1 - 2);
    const auto tabella = std::count_if(righe.begin(), righe.end(), [](const std::string& riga) {
        return riga.size() > 9 && riga.compare(4, 5, "  |  ") == 0 && riga[2] >= '0' &&
               riga[2] <= '9';
    });
    EXPECT_EQ(std::to_string(tabella), m);
    EXPECT_TRUE(Contiene(righe, "Colpi: \t\t" + m));
}

TEST(StampaTxt, NumeriDiColpoDaDueATreCifre)
{
    // A shoe has some thirty coups: a hundred and more are put in by hand.
    AmbienteDiProva prova;
    Prepara(prova, Casi[0]);
    AmbienteInUso.PreparaTaglia = [prepara = AmbienteInUso.PreparaTaglia](std::int64_t taglia) {
        prepara(taglia);
        modCarte::NumeroColpo = 75; // the counting pass starts from here
    };
    StampaTxt(1);
    const auto righe = aiuti::Righe(Byte(prova.Cartella.File("taglie.txt")));
    const auto inizia = [&righe](const std::string& testo) {
        return std::count_if(righe.begin(), righe.end(), [&testo](const std::string& riga) {
            return riga.rfind(testo, 0) == 0;
        });
    };
    EXPECT_EQ(inizia("  01  |  "), 1);
    EXPECT_EQ(inizia("  09  |  "), 1);
    EXPECT_EQ(inizia("  10  |  "), 1);
    // Behind the shoe's end the records stay those of the exhausted shoe, with its last number.
    EXPECT_GT(inizia("  "), 99);
}

TEST(StampaTxt, TrentunoAssenteLasciaIlContoVuoto)
{
    const auto righe = RigheTxt("tre");
    EXPECT_TRUE(Contiene(righe, "31 après: \t\t (0,00%)"));
    EXPECT_TRUE(Contiene(righe, "31 après: \t0 (0,00%)")); // in a shoe's own block zero is 0
}

TEST(StampaTxt, UnPariMostraUgualeInDueColonne)
{
    const auto righe = RigheTxt("uno_trentuno");
    EXPECT_TRUE(std::any_of(righe.begin(), righe.end(), [](const std::string& riga) {
        return riga.find("  |  =   |  =   |  31 |  31 |") != std::string::npos;
    }));
}

TEST(StampaTxt, UnaManoPiuLungaDiTrentunoNonHaRiempimento)
{
    const auto righe = RigheTxt("tre");
    bool lunga = false;
    bool giusta = false;
    for (const auto& riga : righe) {
        const auto barra = riga.rfind('|');
        const auto prima = riga.rfind('|', barra - 1);
        if (riga.compare(0, 2, "  ") != 0 || riga.size() < 40 || riga[2] < '0' || riga[2] > '9') {
            continue;
        }
        const auto mano = riga.substr(prima + 1, barra - prima - 1);
        lunga = lunga || (mano.size() > 31 && mano.back() != ' ');
        giusta = giusta || mano.size() == 31;
        EXPECT_GE(mano.size(), 31U) << riga;
    }
    EXPECT_TRUE(lunga);
    EXPECT_TRUE(giusta);
}

TEST(StampaTxt, DivisorePerZeroTieneLeTaglieIntereEDaErrore)
{
    // The second shoe's counting pass finds one record only: no coup is shown.
    AmbienteDiProva prova;
    Prepara(prova, Casi[2]);
    AmbienteInUso.PreparaTaglia = [prepara = AmbienteInUso.PreparaTaglia](std::int64_t taglia) {
        prepara(taglia);
        if (taglia == 2) modCarte::Posizione = 312;
    };
    try {
        StampaTxt(3);
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::DivisionePerZero);
    }
    const std::string dorato = Dorato("tre.nbsp.pieno.txt");
    const auto fine = dorato.find("\t\t\tTaglia 2") - 2; // the empty line before it
    EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) == dorato.substr(0, fine));
    EXPECT_TRUE(prova.Aperti.empty());
}

TEST(StampaHtml, UnErroreNelMezzoNonLasciaFile)
{
    AmbienteDiProva prova;
    Prepara(prova, Casi[2]);
    AmbienteInUso.PreparaTaglia = [prepara = AmbienteInUso.PreparaTaglia](std::int64_t taglia) {
        prepara(taglia);
        if (taglia != 2) return;
        // Counted as no record at all: the last one is then that of the cancelled cards.
        modCarte::NumeroColpo = 0;
        modCarte::Posizione = 312;
    };
    EXPECT_THROW(StampaHtml(3), ErroreRuntime);
    EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    EXPECT_TRUE(prova.Aperti.empty());
}

TEST(StampaHtml, UnaTagliaSenzaLinkNeStatistiche)
{
    const std::string pagina = Html("uno_liscio");
    EXPECT_EQ(pagina.find("Vai alla taglia"), std::string::npos);
    EXPECT_NE(pagina.find("<b>Taglia</b></font><br><br>\r\n"), std::string::npos);
    EXPECT_EQ(pagina.find("Statistiche generali"), std::string::npos);
    EXPECT_EQ(Conta(pagina, "#statistiche"), 1U);
    EXPECT_EQ(Conta(pagina, "name=\"statistiche\""), 0U);
}

TEST(StampaHtml, TreTaglieHannoILinkDueETre)
{
    const std::string pagina = Html("tre");
    EXPECT_NE(
        pagina.find("Vai alla taglia: \r\n<a href=\"#2\">2</a>\r\n<a href=\"#3\">3</a>\r\n</div>"),
        std::string::npos);
    EXPECT_EQ(pagina.find("<a href=\"#1\">"), std::string::npos);
    EXPECT_EQ(Conta(pagina, "<b>Taglia "), 3U);
    EXPECT_EQ(Conta(pagina, "<b>Statistiche generali</b>"), 1U);
}

TEST(StampaHtml, IlRecordFinaleLungoEUnaRigaDiLineette)
{
    // Four cells, as for a tie; this shoe's last row is its long final record.
    const std::string pagina = Html("uno_liscio");
    const auto ultima = pagina.rfind("<tr>\r\n  <td width=\"5%\"");
    ASSERT_NE(ultima, std::string::npos);
    EXPECT_EQ(Conta(pagina.substr(ultima), ">---</td>"), 4U);
    modCarte::ImpostaMazzo(aiuti::MazziDorati("uno_liscio.mazzi").front());
    modCarte::GiocaTaglia();
    const auto k = std::to_string(modCarte::Colpi.size() - 1);
    EXPECT_NE(pagina.find("Colpi taglia: " + k + " - Nero: "), std::string::npos);
    EXPECT_NE(pagina.find("Carte utilizzate: 308<br>"), std::string::npos);
}

TEST(StampaHtml, MoltissimiLinkNonStannoTuttiInMemoria)
{
    // Stopped after the first shoe: the links of the page's top are written already.
    AmbienteDiProva prova;
    std::uintmax_t scritti = 0;
    bool ferma = false;
    AmbienteInUso.TagliaFatta = [&](std::int64_t) {
        scritti = std::filesystem::file_size(prova.Cartella.File("taglie.htm"));
        ferma = true;
    };
    AmbienteInUso.Fermare = [&] { return ferma; };
    EXPECT_EQ(StampaHtml(40000), std::nullopt);
    EXPECT_GT(scritti, 39999U * 20);
}

TEST(StampaHtml, SiFermaAncheFraILink)
{
    AmbienteDiProva prova;
    int fatte = 0;
    AmbienteInUso.TagliaFatta = [&](std::int64_t) { ++fatte; };
    AmbienteInUso.Fermare = [] { return true; };
    EXPECT_EQ(StampaHtml(2000000), std::nullopt);
    EXPECT_EQ(fatte, 0);
    EXPECT_TRUE(prova.Cartella.Contenuto().empty());
}

TEST(StampaTxt, UnFileMessoAlSuoPostoNonSiTocca)
{
    AmbienteDiProva prova;
    const double taglie = Prepara(prova, Casi[2]);
    const auto percorso = prova.Cartella.File("taglie.txt");
    AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
        if (fatte != 2) return;
        std::filesystem::rename(percorso, prova.Cartella.File("suo"));
        std::ofstream(percorso) << "altrui";
    };
    EXPECT_THROW(StampaTxt(taglie), ErroreRuntime);
    EXPECT_EQ(Byte(percorso), "altrui");
    EXPECT_TRUE(prova.Aperti.empty());
}

TEST(StampaTxt, NumeroConDecimaliRestaDoveSiStampaESiDivide)
{
    AmbienteDiProva prova;
    Prepara(prova, Casi[2]);
    ASSERT_TRUE(StatisticheTxt(2.5, {})); // two shoes, halves to even
    const auto righe = aiuti::Righe(Byte(prova.Cartella.File("taglie.txt")));
    EXPECT_TRUE(Contiene(righe, "Taglie: \t\t3"));
}

TEST(StampaHtml, NumeroPocoSopraUnoETrattatoComePiuDiUno)
{
    AmbienteDiProva prova;
    Prepara(prova, Casi[2]);
    ASSERT_TRUE(StampaHtml(1.25));
    const std::string pagina = Byte(prova.Cartella.File("taglie.htm"));
    EXPECT_NE(pagina.find("Vai alla taglia: \r\n</div>"), std::string::npos);
    EXPECT_NE(pagina.find("<b>Taglia 1</b>"), std::string::npos);
    EXPECT_NE(pagina.find("<b>Statistiche generali</b>"), std::string::npos);
}

TEST(SemeHtml, EntitaDallUltimaLettera)
{
    EXPECT_EQ(SemeHtml("10C"), "&hearts;");
    EXPECT_EQ(SemeHtml("QQ"), "&diams;");
    EXPECT_EQ(SemeHtml("KF"), "&clubs;");
    EXPECT_EQ(SemeHtml("AP"), "&spades;");
    EXPECT_EQ(SemeHtml("Ax"), "");
    EXPECT_EQ(SemeHtml(""), "");
}

TEST(ClasseRossa, CuoriEQuadri)
{
    EXPECT_EQ(ClasseRossa("10C"), " red");
    EXPECT_EQ(ClasseRossa("QQ"), " red");
    EXPECT_EQ(ClasseRossa("CF"), "");
    EXPECT_EQ(ClasseRossa("QP"), "");
    EXPECT_EQ(ClasseRossa("x"), "");
    EXPECT_EQ(ClasseRossa(""), "");
}

TEST(FoglioStile, QuelloRidottoHaSeiRegole)
{
    std::string completo;
    AggiungiStile(completo, FoglioStile::Completo);
    std::string ridotto;
    AggiungiStile(ridotto, FoglioStile::Statistiche);
    EXPECT_EQ(Conta(ridotto, "{"), 6U);
    EXPECT_EQ(Conta(completo, "{"), 16U);
    EXPECT_EQ(Conta(ridotto, "}"), 6U);
    EXPECT_NE(completo.find("\r\n\r\n.red { color: #ff0000; }\r\n\r\n"), std::string::npos);
    EXPECT_NE(completo.find("  width:  0.80em;\r\n"), std::string::npos);
}
