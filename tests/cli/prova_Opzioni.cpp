// The arguments of the command: what each means and what is refused.

#include "ErroreComando.h"
#include "Opzioni.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace cli;

namespace {

// Exit code and message of refused arguments.
std::pair<int, std::string> Rifiuto(const std::vector<std::string>& argomenti)
{
    try {
        LeggiOpzioni(argomenti);
    } catch (const ErroreComando& errore) {
        return {errore.CodiceUscita(), errore.what()};
    }
    return {0, "accettato"};
}

} // namespace

TEST(Opzioni, SenzaArgomentiUnReportDiTestoDiUnaTaglia)
{
    const Opzioni opzioni = LeggiOpzioni({});
    EXPECT_EQ(opzioni.Taglie, std::nullopt);
    EXPECT_EQ(opzioni.FormaReport, Stampe::FormaTxt);
    EXPECT_TRUE(opzioni.Piena());
    EXPECT_EQ(opzioni.Cartella, ".");
    EXPECT_EQ(opzioni.Lavori, 1);
    EXPECT_EQ(opzioni.Avanzamento, Avviso::Auto);
    EXPECT_FALSE(opzioni.Apri || opzioni.Quieto || opzioni.Seme);
}

TEST(Opzioni, FormeBreviELunghe)
{
    const Opzioni brevi =
        LeggiOpzioni({"12", "-f", "html", "-s", "-c", "/tmp", "-a", "-j", "3", "-q"});
    const Opzioni lunghe = LeggiOpzioni({"--forma=html", "--statistiche", "--cartella=/tmp",
                                         "--apri", "--lavori=3", "--quieto", "12"});
    for (const auto& opzioni : {brevi, lunghe}) {
        EXPECT_EQ(opzioni.Taglie, 12);
        EXPECT_EQ(opzioni.FormaReport, Stampe::FormaHtml);
        EXPECT_TRUE(opzioni.Statistiche);
        EXPECT_FALSE(opzioni.Piena());
        EXPECT_EQ(opzioni.Cartella, "/tmp");
        EXPECT_TRUE(opzioni.Apri);
        EXPECT_EQ(opzioni.Lavori, 3);
        EXPECT_TRUE(opzioni.Quieto);
    }
}

TEST(Opzioni, DatiSenzaFormaNonVoglionoReport)
{
    EXPECT_EQ(LeggiOpzioni({"--dati", "json"}).FormaReport, Stampe::FormaNessuna);
    EXPECT_EQ(LeggiOpzioni({"--dati", "csv", "-f", "txt"}).FormaReport, Stampe::FormaTxt);
    EXPECT_EQ(LeggiOpzioni({"-f", "html", "--dati", "csv"}).Dati, FormaDati::Csv);
}

TEST(Opzioni, SeparatoriScelti)
{
    EXPECT_EQ(LeggiOpzioni({"--numeri", "it"}).Numeri, (Separatori{",", "."}));
    EXPECT_EQ(LeggiOpzioni({"--numeri", "c"}).Numeri, (Separatori{".", ""}));
    EXPECT_EQ(LeggiOpzioni({"--numeri", "sistema"}).Numeri, SeparatoriUtente());
    EXPECT_EQ(LeggiOpzioni({}).Numeri, SeparatoriUtente());
}

TEST(Opzioni, SemeDiSessantaquattroBit)
{
    EXPECT_EQ(LeggiOpzioni({"--seme", "0"}).Seme, 0U);
    EXPECT_EQ(LeggiOpzioni({"--seme", "18446744073709551615"}).Seme, ~std::uint64_t{0});
    for (const auto* seme : {"18446744073709551616", "-1", "+1", "1e3", "0x10", "7 ", ""}) {
        EXPECT_EQ(Rifiuto({"--seme", seme}).first, 2) << seme;
    }
}

TEST(Opzioni, NumeroDiTaglie)
{
    EXPECT_EQ(LeggiOpzioni({"9007199254740992"}).Taglie, std::int64_t{1} << 53);
    EXPECT_EQ(LeggiOpzioni({"007"}).Taglie, 7);
    for (const auto* numero : {"-1", "1e3", "1.5", "1,5", "+1", " 1", "uno", "0x5"}) {
        const auto [codice, testo] = Rifiuto({numero});
        EXPECT_EQ(codice, 2) << numero;
        EXPECT_EQ(testo,
                  std::string("numero di taglie: \"") + numero + "\" non è un numero intero");
    }
    EXPECT_EQ(Rifiuto({"0"}), std::pair(2, std::string("numero di taglie: deve essere almeno 1")));
    EXPECT_EQ(Rifiuto({"00"}).first, 2);
    EXPECT_EQ(Rifiuto({"9007199254740993"}).first, 3);
    EXPECT_EQ(Rifiuto({"18446744073709551616"}).first, 3);
    EXPECT_EQ(Rifiuto({"99999999999999999999999"}).first, 3);
}

TEST(Opzioni, ArgomentiSconosciutiODiTroppo)
{
    EXPECT_EQ(Rifiuto({"--boh"}), std::pair(2, std::string("--boh: opzione sconosciuta")));
    EXPECT_EQ(Rifiuto({"-x"}), std::pair(2, std::string("-x: opzione sconosciuta")));
    EXPECT_EQ(Rifiuto({"3", "4"}), std::pair(2, std::string("4: argomento di troppo")));
    EXPECT_EQ(Rifiuto({"--seme"}), std::pair(2, std::string("--seme: manca il valore")));
    EXPECT_EQ(Rifiuto({"-f", "doc"}).second,
              "--forma: \"doc\" non è tra html, nessuna, pdf, txt, video");
    EXPECT_EQ(Rifiuto({"--dati", "xml"}).second, "--dati: \"xml\" non è tra csv, json");
    EXPECT_EQ(Rifiuto({"--numeri", "fr"}).second, "--numeri: \"fr\" non è tra c, it, sistema");
    EXPECT_EQ(Rifiuto({"--avanzamento", "x"}).second,
              "--avanzamento: \"x\" non è tra auto, mai, sempre");
}

TEST(Opzioni, Lavori)
{
    EXPECT_GE(LeggiOpzioni({"-s", "-j", "0"}).Lavori, 1);
    EXPECT_EQ(LeggiOpzioni({"-s", "-j", "256"}).Lavori, 256);
    EXPECT_EQ(LeggiOpzioni({"-j", "1"}).Lavori, 1); // one thread suits a full report, too
    for (const auto* lavori : {"257", "-1", "x", "1e1"}) {
        EXPECT_EQ(Rifiuto({"-s", "-j", lavori}).first, 2) << lavori;
    }
    EXPECT_EQ(Rifiuto({"-j", "2"}).first, 2);
    EXPECT_EQ(Rifiuto({"-j", "2", "-f", "html"}).first, 2);
    EXPECT_EQ(Rifiuto({"-j", "2", "-f", "nessuna"}).first, 0);
    EXPECT_EQ(Rifiuto({"-s", "-j", "2", "--colpi", "c"}).first, 2);
    EXPECT_EQ(Rifiuto({"-s", "-j", "2", "--salva-mazzi", "m"}).first, 2);
}

TEST(Opzioni, Contraddizioni)
{
    EXPECT_EQ(Rifiuto({"--mazzi", "m", "--seme", "1"}).first, 2);
    EXPECT_EQ(Rifiuto({"-a", "-f", "nessuna"}).first, 2);
    EXPECT_EQ(Rifiuto({"-a", "--dati", "json"}).first, 2);
    EXPECT_EQ(Rifiuto({"--mazzi", ""}).first, 2);
    EXPECT_EQ(Rifiuto({"-c", ""}).first, 2);
}

TEST(Opzioni, UnaCartellaVuoleUnReportInUnFile)
{
    for (const auto* forma : {"nessuna", "video"}) {
        EXPECT_EQ(
            Rifiuto({"-f", forma, "-c", "."}),
            std::pair(2, std::string("--cartella: senza un report in un file non c'è nulla da "
                                     "metterci")));
    }
    EXPECT_EQ(Rifiuto({"--dati", "json", "--cartella=x"}).first, 2);
    EXPECT_EQ(LeggiOpzioni({"--dati", "json", "-f", "pdf", "-c", "x"}).Cartella, "x");
}

TEST(Opzioni, AiutoEVersionePrimaDiOgniControllo)
{
    EXPECT_TRUE(LeggiOpzioni({"--help", "-f", "doc"}).Aiuto);
    EXPECT_TRUE(LeggiOpzioni({"-V"}).Versione);
}

TEST(Opzioni, VideoEOccupaLoStandardOutput)
{
    EXPECT_EQ(LeggiOpzioni({"-f", "video", "-j", "2"}).FormaReport, Stampe::FormaVideo);
    EXPECT_EQ(Rifiuto({"-f", "video", "--dati", "json"}),
              std::pair(2, std::string("--dati: con -f video lo standard output è già delle "
                                       "statistiche")));
}

TEST(Opzioni, ICaratteriUniciSonoDelSoloPdf)
{
    EXPECT_FALSE(LeggiOpzioni({"-f", "pdf"}).CaratteriUnici);
    EXPECT_TRUE(LeggiOpzioni({"-f", "pdf", "--caratteri-unici"}).CaratteriUnici);
    EXPECT_EQ(Rifiuto({"--caratteri-unici"}),
              std::pair(2, std::string("--caratteri-unici: vale solo con -f pdf")));
}

TEST(Opzioni, IlNomeDelReportDiceLaForma)
{
    using Stampe::Forma;
    const std::vector<std::pair<std::string, Forma>> casi = {
        {"x.pdf", Stampe::FormaPdf},   {"a/b.PDF", Stampe::FormaPdf}, {"x.htm", Stampe::FormaHtml},
        {"x.html", Stampe::FormaHtml}, {"x.HtMl", Stampe::FormaHtml}, {"x.txt", Stampe::FormaTxt},
        {"pdf", Stampe::FormaTxt},     {".pdf", Stampe::FormaTxt},    {"x.pdf/y", Stampe::FormaTxt},
        {"x.pdf~", Stampe::FormaTxt}};
    for (const auto& [nome, forma] : casi) {
        EXPECT_EQ(LeggiOpzioni({"-o", nome}).FormaReport, forma) << nome;
        EXPECT_EQ(LeggiOpzioni({"-o", nome}).Report, nome);
        EXPECT_EQ(LeggiOpzioni({"-o", nome, "-f", "html"}).FormaReport, Stampe::FormaHtml) << nome;
    }
    EXPECT_EQ(LeggiOpzioni({"--dati", "json", "-o", "x.pdf"}).FormaReport, Stampe::FormaPdf);
    EXPECT_FALSE(LeggiOpzioni({"-o", "x.pdf"}).SuUscita);
}

TEST(Opzioni, UnTrattoELoStandardOutput)
{
    const Opzioni opzioni = LeggiOpzioni({"-o", "-", "-f", "pdf"});
    EXPECT_TRUE(opzioni.SuUscita);
    EXPECT_EQ(opzioni.Report, "");
    EXPECT_EQ(LeggiOpzioni({"--uscita=-"}).FormaReport, Stampe::FormaTxt);
    EXPECT_FALSE(LeggiOpzioni({"-o", "./-"}).SuUscita);
}

TEST(Opzioni, CioCheNonVaConUnNomeOConLoStandardOutput)
{
    using Caso = std::pair<std::vector<std::string>, std::string>;
    const std::vector<Caso> casi = {
        {{"-o", "-", "--dati", "json"}, "--dati: con -o - lo standard output è già del report"},
        {{"-o", "-", "--dati", "csv", "-f", "txt"},
         "--dati: con -o - lo standard output è già del report"},
        {{"-o", "-", "-f", "video"}, "--forma: con -o - lo standard output è già del report"},
        {{"-o", "-", "-a"}, "--apri: con -o - non c'è un file da aprire"},
        {{"-o", "-", "-c", "x"}, "--cartella: con -o - il report non va in una cartella"},
        {{"-o", "-", "-f", "nessuna"},
         "--uscita: senza un report in un file non c'è nulla da scrivere"},
        {{"-o", "x", "-f", "video"},
         "--uscita: senza un report in un file non c'è nulla da scrivere"},
        {{"-o", "x", "--dati", "json"},
         "--uscita: senza un report in un file non c'è nulla da scrivere"},
        {{"-o", ""}, "--uscita: il nome è vuoto"},
        {{"-o"}, "--uscita: manca il valore"}};
    for (const auto& [argomenti, messaggio] : casi) {
        EXPECT_EQ(Rifiuto(argomenti), std::pair(static_cast<int>(UscitaUso), messaggio));
    }
    EXPECT_EQ(Rifiuto({"-o", "x", "-c", "y"}).first, 0); // x in y
}

TEST(Opzioni, CompattoValeSoloPerIPdf)
{
    EXPECT_TRUE(LeggiOpzioni({"-f", "pdf", "--compatto"}).Compatto);
    EXPECT_TRUE(LeggiOpzioni({"-o", "x.pdf", "--compatto", "--caratteri-unici"}).Compatto);
    EXPECT_FALSE(LeggiOpzioni({"-f", "pdf"}).Compatto);
    for (const auto* forma : {"txt", "html", "video", "nessuna"}) {
        EXPECT_EQ(Rifiuto({"-f", forma, "--compatto"}),
                  std::pair(static_cast<int>(UscitaUso),
                            std::string("--compatto: vale solo con -f pdf")));
    }
}
