// The document where names can be links and programs have a locale of their own.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <locale>
#include <string>

using aiuti::Byte;
using aiuti::ByteDocumento;
using aiuti::CartellaDiProva;

TEST(BeginDoc, NonScriveMaiDietroUnCollegamento)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("altrui")) << "intatto";
    std::filesystem::create_symlink("altrui", cartella.File("prova.pdf"));
    clsPDFCreator pdf;
    pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    pdf.BeginPage();
    pdf.EndPage();
    pdf.EndDoc();
    EXPECT_EQ(Byte(cartella.File("altrui")), "intatto");
    EXPECT_TRUE(std::filesystem::is_regular_file(
        std::filesystem::symlink_status(cartella.File("prova.pdf"))));
}

TEST(Lingua, IByteSonoGliStessiInOgniLingua)
{
    const auto disegno = [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetFont("Times New Roman", 10.5F);
        pdf.DrawText(1234.5F, 1.25F, "1.234,5 è");
        pdf.DrawRect(0.5F, 0.25F, 10000.75F, 1000000);
        pdf.SetColorFill("%37.5");
        pdf.SetColorFill("silver");
        pdf.EndPage();
    };
    const std::string atteso = ByteDocumento({}, disegno);
    for (const char* lingua : {"it_IT.UTF-8", "en_US.UTF-8", "C"}) {
        EXPECT_EQ(aiuti::InUnFiglio([&] {
                      ASSERT_NE(std::setlocale(LC_ALL, lingua), nullptr)
                          << lingua << " not found; LOCPATH must name the folder of locales";
                      std::locale::global(std::locale(lingua));
                      EXPECT_TRUE(ByteDocumento({}, disegno) == atteso);
                  }),
                  aiuti::Riuscito)
            << lingua;
    }
}
