// The run-time error: numbers, texts and the line that the user sees.

#include "ErroreRuntime.h"

#include <gtest/gtest.h>

TEST(ErroreRuntime, OgniNumeroHaIlSuoTesto)
{
    EXPECT_EQ(TestoErrore(NumeroErrore{5}), "Chiamata o valore non validi");
    EXPECT_EQ(TestoErrore(NumeroErrore{6}), "Overflow");
    EXPECT_EQ(TestoErrore(NumeroErrore{7}), "Memoria esaurita");
    EXPECT_EQ(TestoErrore(NumeroErrore{9}), "Indice fuori dall'intervallo");
    EXPECT_EQ(TestoErrore(NumeroErrore{11}), "Divisione per zero");
    EXPECT_EQ(TestoErrore(NumeroErrore{13}), "Tipo non corrispondente");
    EXPECT_EQ(TestoErrore(NumeroErrore{53}), "File non trovato");
    EXPECT_EQ(TestoErrore(NumeroErrore{57}), "Errore di lettura o scrittura");
    EXPECT_EQ(TestoErrore(NumeroErrore{61}), "Disco pieno");
    EXPECT_EQ(TestoErrore(NumeroErrore{70}), "Permesso negato");
    EXPECT_EQ(TestoErrore(NumeroErrore{75}), "Impossibile accedere al file");
    EXPECT_EQ(TestoErrore(NumeroErrore{76}), "Cartella non trovata");
    EXPECT_EQ(TestoErrore(NumeroErrore{1}), "Errore sconosciuto");
}

TEST(ErroreRuntime, FileEMotivoInUnaRiga)
{
    const ErroreRuntime errore(NumeroErrore::DiscoPieno, "spazio esaurito", "/tmp/taglie.txt");
    EXPECT_EQ(errore.Numero(), NumeroErrore::DiscoPieno);
    EXPECT_EQ(errore.Testo(), "Disco pieno");
    EXPECT_EQ(errore.Motivo(), "spazio esaurito");
    EXPECT_EQ(errore.File(), "/tmp/taglie.txt");
    EXPECT_EQ(errore.Number(), 61);
    EXPECT_EQ(errore.Reason(), "spazio esaurito");
    EXPECT_STREQ(errore.what(), "/tmp/taglie.txt: spazio esaurito");
}

TEST(ErroreRuntime, IlTestoStaAlPostoDiCioCheManca)
{
    EXPECT_STREQ(ErroreRuntime(NumeroErrore::Overflow).what(), "Overflow");
    EXPECT_STREQ(ErroreRuntime(NumeroErrore::Overflow, "troppo grande").what(),
                 "Overflow: troppo grande");
    EXPECT_STREQ(ErroreRuntime(NumeroErrore::FileNonTrovato, "", "taglie.txt").what(),
                 "taglie.txt: File non trovato");
}

TEST(ErroreRuntime, IByteDelNomePassanoInvariati)
{
    const ErroreRuntime errore(NumeroErrore::AccessoAlFile, "x", "\xE8\xFF");
    EXPECT_EQ(errore.File(), "\xE8\xFF");
    EXPECT_STREQ(errore.what(), "\xE8\xFF: x");
}

TEST(ErroreRuntime, SiPrendeAncheComeEccezioneStandard)
{
    try {
        throw ErroreRuntime(NumeroErrore::DivisionePerZero);
    } catch (const std::exception& errore) {
        EXPECT_STREQ(errore.what(), "Divisione per zero");
    }
}
