// Templates with placeholders, step by step, and the escapes of texts.

#include "Template.h"

#include "ErroreRuntime.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

using pdf::Argument;
using pdf::prExpand;
using pdf::prPDFString;

namespace {

std::string Riempito(std::string_view modello, const std::vector<Argument>& argomenti)
{
    return prExpand(modello, argomenti).value_or("(nothing)");
}

Argument Testo(const char* testo)
{
    return std::string(testo);
}

ErroreRuntime ErroreDi(std::string_view modello, const Argument& argomento)
{
    try {
        prExpand(modello, {&argomento, 1});
    } catch (const ErroreRuntime& errore) {
        return errore;
    }
    ADD_FAILURE() << "no error: " << modello;
    return ErroreRuntime(NumeroErrore::ChiamataNonValida);
}

void NonAdatto(std::string_view modello, const Argument& argomento)
{
    const auto errore = ErroreDi(modello, argomento);
    EXPECT_EQ(errore.Numero(), NumeroErrore::TipoNonCorrispondente) << modello;
    EXPECT_EQ(errore.Motivo(),
              "l'argomento non è adatto al segnaposto \"" + std::string(modello) + "\"");
}

} // namespace

TEST(PrExpand, InteroArrotondatoInBasso)
{
    EXPECT_EQ(Riempito("#i 0 obj", {12.0}), "12 0 obj");
    EXPECT_EQ(Riempito("#i", {2.9}), "2");
    EXPECT_EQ(Riempito("#i", {-0.5}), "-1");
    EXPECT_EQ(Riempito("#i", {-3.0}), "-3");
    EXPECT_EQ(Riempito("#i", {1e15}), "1000000000000000");
}

TEST(PrExpand, NumeroInMillesimi)
{
    EXPECT_EQ(Riempito("#s #s #s", {12.34567, 12.5, 100.0}), "12.346 12.5 100");
    EXPECT_EQ(Riempito("#s", {0.0625}), "0.062");
    EXPECT_EQ(Riempito("#s", {841.89}), "841.89");
}

TEST(PrExpand, ComponenteDiUnColore)
{
    EXPECT_EQ(Riempito("#c #c #c rg", {255.0, 128.0, 0.0}), "1 0.502 0 rg");
    EXPECT_EQ(Riempito("#c", {192.0}), "0.753");
}

TEST(PrExpand, TestoComeStaETestoProtetto)
{
    EXPECT_EQ(Riempito("<#t>", {Testo("a(b)\\c")}), "<a(b)\\c>");
    EXPECT_EQ(Riempito("(#p)", {Testo("a(b)\\c")}), "(a\\(b\\)\\\\c)");
    EXPECT_EQ(Riempito("#t #p", {12.5, 3.0}), "12.5 3");
}

TEST(PrExpand, DataConIlSuoFusoFisso)
{
    EXPECT_EQ(Riempito("(#d)", {clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}}),
              "(D:20260102030405Z+01'00')");
    EXPECT_EQ(pdf::prDate({1999, 12, 31, 23, 59, 59}), "D:19991231235959Z+01'00'");
    EXPECT_EQ(pdf::prDate({26, 1, 2, 0, 0, 0}), "D:00260102000000Z+01'00'");
}

TEST(PrExpand, VeroEFalso)
{
    EXPECT_EQ(Riempito("#b #b", {true, false}), "true false");
}

TEST(PrExpand, DueCancellettiSonoUnoEPrendonoUnArgomento)
{
    EXPECT_EQ(Riempito("## #i", {Testo("consumato"), 7.0}), "# 7");
    EXPECT_EQ(Riempito("##", {1.0}), "#");
}

TEST(PrExpand, UnaCoppiaIgnotaRestaEPrendeUnArgomento)
{
    EXPECT_EQ(Riempito("#x #i", {1.0, 2.0}), "#x 2");
    EXPECT_EQ(Riempito("a#", {1.0}), "a#");
    EXPECT_EQ(Riempito("#I", {1.0}), "#I"); // small letters only
}

TEST(PrExpand, SenzaArgomentiRestaComeSta)
{
    EXPECT_EQ(Riempito("#i ## #t", {}), "#i ## #t");
    EXPECT_EQ(Riempito("", {}), "");
}

TEST(PrExpand, ConMenoSegnapostiCheArgomentiNonEsceNiente)
{
    EXPECT_FALSE(prExpand("senza segnaposti", std::vector<Argument>{1.0}));
    EXPECT_FALSE(prExpand("#i", std::vector<Argument>{1.0, 2.0}));
    EXPECT_FALSE(prExpand("", std::vector<Argument>{1.0}));
}

TEST(PrExpand, ConPiuSegnapostiCheArgomentiGliAltriRestano)
{
    EXPECT_EQ(Riempito("#i #i #t", {1.0}), "1 #i #t");
}

TEST(PrExpand, UnCancellettoInUnValoreEUnSegnapostoATurnoSuo)
{
    EXPECT_EQ(Riempito("(#t) (#t)", {Testo("a#t"), Testo("b")}), "(ab) (#t)");
    EXPECT_EQ(Riempito("(#p) #i", {Testo("n#i"), 8.0}), "(n8) #i");
}

TEST(PrExpand, IlCancellettoInTestaAUnValoreNonSiVedePiu)
{
    EXPECT_EQ(Riempito("(#t) (#t)", {Testo("#t"), Testo("b")}), "(#t) (b)");
    EXPECT_EQ(Riempito("(#t) (#t)", {Testo("##t"), Testo("b")}), "(#b) (#t)");
}

TEST(PrExpand, UnValoreVuotoFaSaltareIlCarattereCheSegue)
{
    EXPECT_EQ(Riempito("(#t)#t", {Testo(""), Testo("b")}), "()b"); // the parenthesis is skipped
    EXPECT_FALSE(prExpand("#t#t", std::vector<Argument>{Testo(""), Testo("b")}));
}

TEST(PrExpand, UnArgomentoDiAltraSpecieEUnErrore)
{
    NonAdatto("#i", Testo("12"));
    NonAdatto("#s", Testo("x"));
    NonAdatto("#c", true);
    NonAdatto("#t", true);
    NonAdatto("#p", clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5});
    NonAdatto("#d", Testo("D:2026"));
    NonAdatto("#b", 1.0);
}

TEST(PrExpand, UnNumeroNonFinitoEUnErrore)
{
    for (const double valore :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        for (const auto* modello : {"#i", "#s", "#c"}) {
            const auto errore = ErroreDi(modello, valore);
            EXPECT_EQ(errore.Numero(), NumeroErrore::Overflow) << modello;
            EXPECT_EQ(errore.Motivo(), "un numero non è finito");
        }
    }
}

TEST(PrPDFString, SoloBarraETondeSiProteggono)
{
    EXPECT_EQ(prPDFString("\\(\\)"), "\\\\\\(\\\\\\)");
    EXPECT_EQ(prPDFString("(senza titolo)"), "\\(senza titolo\\)");
    EXPECT_EQ(prPDFString("a\r\nb\tc"), "a\r\nb\tc");
    EXPECT_EQ(prPDFString("\xE0\x80\xFF"), "\xE0\x80\xFF");
    EXPECT_EQ(prPDFString(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(prPDFString(""), "");
}

TEST(PrPutPDFString, ScriveAlSuoPostoEDiceDoveFinisce)
{
    std::array<char, 8> posto = {};
    posto.fill('.');
    EXPECT_EQ(pdf::prPutPDFString(posto.data() + 1, "a)b") - posto.data(), 5);
    EXPECT_EQ(std::string(posto.data(), posto.size()), ".a\\)b...");
}
