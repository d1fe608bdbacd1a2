// Pictures from bytes: the same document as from their files, and which of them are the same one.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

using aiuti::Byte;
using aiuti::Disegno;
using aiuti::ErroreDi;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string Seme(const std::string& nome)
{
    return SCALVINO_SEMI "/" + nome;
}

std::string ByteSeme(const std::string& nome)
{
    return Byte(Seme(nome));
}

std::string Pagina(std::int32_t filtri, const Disegno& lavoro)
{
    return aiuti::ByteDocumento({}, [&](clsPDFCreator& pdf) {
        pdf.FilterDecode(filtri);
        pdf.BeginPage();
        lavoro(pdf);
        pdf.EndPage();
    });
}

// How many pictures a document holds.
std::size_t Figure(const Disegno& lavoro)
{
    const std::string byte = Pagina(0, lavoro);
    std::size_t quante = 0;
    for (auto p = byte.find("/Subtype /Image"); p != byte.npos;
         p = byte.find("/Subtype /Image", p + 1)) {
        ++quante;
    }
    return quante;
}

std::vector<std::string> Semi()
{
    std::vector<std::string> nomi;
    for (const char* tipo : {"bmp", "gif", "jpeg"}) {
        for (const auto& voce : std::filesystem::directory_iterator(Seme(tipo))) {
            nomi.push_back(tipo + ("/" + voce.path().filename().string()));
        }
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

void Confronta(std::string_view byte, NumeroErrore numero, const std::string& motivo,
               const std::string& chiave = {})
{
    SCOPED_TRACE(byte.substr(0, 20));
    const std::string atteso = Pagina(0, [](clsPDFCreator&) {});
    const std::string avuto = Pagina(0, [&](clsPDFCreator& pdf) {
        const auto errore = ErroreDi([&] { pdf.DrawImageData(byte, 1, 2, 3, 4, chiave); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), numero);
        EXPECT_EQ(errore->Motivo(), motivo);
        EXPECT_EQ(errore->File(), chiave.empty() ? "immagine" : "immagine \"" + chiave + "\"");
    });
    EXPECT_TRUE(avuto == atteso);
}

constexpr auto NonValida = NumeroErrore::ChiamataNonValida;
constexpr auto Ingresso = NumeroErrore::ErroreInputOutput;
constexpr const char* NonImmagine = "non è un'immagine BMP, GIF o JPEG";
constexpr const char* FinePrima = "il file finisce prima del previsto";

} // namespace

TEST(DrawImageData, DaGliStessiByteDelFile)
{
    const auto semi = Semi();
    ASSERT_GT(semi.size(), 45U);
    for (const auto& nome : semi) {
        for (const std::int32_t filtri : {0, 1, 2, 4, 8}) {
            const std::string daFile = Pagina(filtri, [&](clsPDFCreator& pdf) {
                pdf.DrawImage(Seme(nome), 1, 2.5F, 30, 40);
                EXPECT_EQ(pdf.GetX(), 1);
                EXPECT_EQ(pdf.GetY(), 2.5F);
            });
            const std::string daByte = Pagina(filtri, [&](clsPDFCreator& pdf) {
                std::string byte = ByteSeme(nome);
                pdf.DrawImageData(byte, 1, 2.5F, 30, 40);
                EXPECT_EQ(pdf.GetX(), 1);
                EXPECT_EQ(pdf.GetY(), 2.5F);
                std::fill(byte.begin(), byte.end(), '?'); // they served for the call only
            });
            EXPECT_TRUE(daFile == daByte) << nome << " " << filtri;
        }
    }
}

TEST(DrawImageData, SenzaChiaveLoStessoContenutoEUnaFiguraSola)
{
    const std::string una = ByteSeme("gif/1bit.gif");
    std::string altra = ByteSeme("gif/2bit.gif");
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  for (int i = 0; i < 5; ++i) pdf.DrawImageData(una, 1, 2, 3, 4);
                  pdf.DrawImageData(altra, 1, 2, 3, 4);
                  pdf.DrawImageData(std::string(una), 1, 2, 3, 4);
              }),
              2U);
    // The same bytes in place, but of another picture.
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  std::string posto = una;
                  pdf.DrawImageData(posto, 1, 2, 3, 4);
                  posto = altra;
                  pdf.DrawImageData(posto, 1, 2, 3, 4);
              }),
              2U);
}

TEST(DrawImageData, UnBitDiDifferenzaEUnAltraFigura)
{
    const std::string una = ByteSeme("bmp/24bit_40.bmp");
    std::string altra = una;
    altra.back() = static_cast<char>(altra.back() ^ 1);
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  pdf.DrawImageData(una, 1, 2, 3, 4);
                  pdf.DrawImageData(altra, 1, 2, 3, 4);
              }),
              2U);
}

TEST(DrawImageData, UnaChiaveEUnaFiguraQualunqueSianoIByte)
{
    const std::string una = ByteSeme("gif/1bit.gif");
    const std::string altra = ByteSeme("jpeg/colori.jpg");
    const std::string byte = Pagina(0, [&](clsPDFCreator& pdf) {
        pdf.DrawImageData(una, 1, 2, 3, 4, "logo");
        pdf.DrawImageData(altra, 1, 2, 3, 4, "logo");
        pdf.DrawImageData("", 1, 2, 3, 4, "logo"); // not looked at
    });
    EXPECT_THAT(byte, HasSubstr("/Indexed"));
    EXPECT_THAT(byte, Not(HasSubstr("/DCTDecode")));
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  pdf.DrawImageData(una, 1, 2, 3, 4, "uno");
                  pdf.DrawImageData(una, 1, 2, 3, 4, "due");
                  pdf.DrawImageData(una, 1, 2, 3, 4);
              }),
              3U);
}

TEST(DrawImageData, FigureDiFileNonSonoFigureDiByte)
{
    const std::string nome = Seme("gif/1bit.gif");
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  pdf.DrawImage(nome, 1, 2, 3, 4);
                  pdf.DrawImage(nome, 1, 2, 3, 4, "logo");
                  pdf.DrawImageData(Byte(nome), 1, 2, 3, 4);
                  pdf.DrawImageData(Byte(nome), 1, 2, 3, 4, "logo");
              }),
              4U);
}

TEST(DrawImageData, ByteCheNonSonoUnImmagineSonoUnErrore)
{
    for (const char* byte : {"", "B", "b", "bm", "GIF", "gif89a", "\xFF", "\x89PNG\r\n\x1A\n",
                             "%PDF-1.7", "II*", "RIFF    WEBP"}) {
        Confronta(byte, NonValida, NonImmagine);
    }
    Confronta(std::string(100, '\0'), NonValida, NonImmagine, "logo");
    Confronta("BM", Ingresso, FinePrima);
    Confronta("GIF87a", Ingresso, FinePrima);
    Confronta("GIF8", Ingresso, FinePrima);
    Confronta("\xFF\xD8", Ingresso, FinePrima, "foto");
    Confronta("\xFF\xD8\xFF\xD9", Ingresso, "il file JPEG non contiene immagini");
    const std::string intera = ByteSeme("bmp/24bit_40.bmp");
    Confronta(std::string_view(intera).substr(0, 60), Ingresso,
              "le dimensioni dichiarate superano quanto il file contiene", "metà \0x");
}

TEST(DrawImageData, UnaFiguraRifiutataNonTieneLaSuaChiave)
{
    EXPECT_EQ(Figure([&](clsPDFCreator& pdf) {
                  EXPECT_TRUE(ErroreDi([&] { pdf.DrawImageData("BM", 1, 2, 3, 4, "logo"); }));
                  pdf.DrawImageData(ByteSeme("gif/1bit.gif"), 1, 2, 3, 4, "logo");
              }),
              1U);
}

TEST(DrawImageData, ByteEnormiSonoRifiutatiSenzaEssereLetti)
{
    // So many bytes are there only by their count: nothing may read more than what is traced here.
    const std::string pochi(20, 'B');
    const std::string_view enormi(pochi.data(), (std::size_t{1} << 30) + 1);
    Confronta(enormi, NumeroErrore::Overflow, "è troppo grande", "logo");
}
