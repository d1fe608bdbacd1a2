// The document where names can be links and programs have a locale of their own.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <locale>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using aiuti::Byte;
using aiuti::ByteDocumento;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

// A device, a pipe with a name and one without, and a socket, for as long as this lives.
class Speciali
{
public:
    explicit Speciali(const CartellaDiProva& cartella)
        : m_cartella(cartella.Nome())
    {
        EXPECT_EQ(::mkfifo((m_cartella + "fifo").c_str(), 0600), 0);
        EXPECT_EQ(::pipe2(m_tubo.data(), O_CLOEXEC), 0);
        sockaddr_un indirizzo = {};
        indirizzo.sun_family = AF_UNIX;
        const std::string presa = m_cartella + "presa";
        EXPECT_LT(presa.size(), sizeof indirizzo.sun_path);
        presa.copy(indirizzo.sun_path, sizeof indirizzo.sun_path - 1);
        EXPECT_EQ(::bind(m_presa, reinterpret_cast<sockaddr*>(&indirizzo), sizeof indirizzo), 0);
    }
    ~Speciali()
    {
        for (const int descrittore : {m_tubo[0], m_tubo[1], m_presa}) ::close(descrittore);
    }
    Speciali(const Speciali&) = delete;
    Speciali& operator=(const Speciali&) = delete;

    std::vector<std::string> Nomi() const
    {
        return {"/dev/null", m_cartella + "fifo", m_cartella + "presa",
                "/proc/self/fd/" + std::to_string(m_tubo[1])};
    }

private:
    std::string m_cartella;
    std::array<int, 2> m_tubo{};
    int m_presa = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

} // namespace

TEST(BeginDoc, NonScriveMaiDietroUnCollegamento)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("altrui")) << "intatto";
    fs::create_symlink("altrui", cartella.File("prova.pdf"));
    clsPDFCreator pdf;
    pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    pdf.BeginPage();
    pdf.EndPage();
    pdf.EndDoc();
    EXPECT_EQ(Byte(cartella.File("altrui")), "intatto");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(cartella.File("prova.pdf"))));
}

TEST(BeginDoc, UnCollegamentoADispositiviTubiOPreseEUnErroreEResta)
{
    const CartellaDiProva cartella;
    Speciali speciali(cartella);
    for (const auto& bersaglio : speciali.Nomi()) {
        const std::string nome = cartella.Nome() + "prova.pdf";
        fs::create_symlink(bersaglio, nome);
        fs::create_symlink("prova.pdf", nome + "2"); // and a link to such a link
        for (const auto& scelto : {nome, nome + "2"}) {
            clsPDFCreator pdf;
            const auto errore = aiuti::ErroreDi([&] { pdf.BeginDoc(scelto); });
            ASSERT_TRUE(errore) << bersaglio;
            EXPECT_EQ(errore->Numero(), NumeroErrore::AccessoAlFile);
            EXPECT_EQ(errore->Motivo(), "è un collegamento a qualcosa che non è un file ordinario");
            EXPECT_EQ(errore->File(), scelto);
            EXPECT_TRUE(aiuti::ErroreDi([&] { pdf.BeginPage(); })) << "no document is open";
        }
        EXPECT_EQ(fs::read_symlink(nome), bersaglio);
        EXPECT_EQ(fs::read_symlink(nome + "2"), "prova.pdf");
        fs::remove(nome);
        fs::remove(nome + "2");
    }
}

TEST(BeginDoc, NonToglieAlSistemaINomiDiCioCheEAperto)
{
    const CartellaDiProva cartella;
    const int file = ::open(cartella.File("uscita").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    fs::create_symlink("/proc/self/fd/" + std::to_string(file), cartella.File("prova.pdf"));
    ASSERT_TRUE(fs::is_regular_file(cartella.File("prova.pdf"))); // what is open is a plain file
    clsPDFCreator pdf;
    EXPECT_TRUE(aiuti::ErroreDi([&] { pdf.BeginDoc(cartella.Nome() + "prova.pdf"); }));
    EXPECT_TRUE(fs::is_symlink(cartella.File("prova.pdf")));
    ::close(file);
}

TEST(BeginDoc, GliAltriCollegamentiSonoSostituiti)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("altrui")) << "intatto";
    fs::create_symlink("altrui", cartella.File("altro"));
    for (const char* bersaglio : {"altrui", "altro", "nulla", ".", "prova.pdf", "altrui/x"}) {
        fs::create_symlink(bersaglio, cartella.File("prova.pdf"));
        clsPDFCreator pdf;
        pdf.BeginDoc(cartella.Nome() + "prova.pdf");
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(cartella.File("prova.pdf"))))
            << bersaglio;
        fs::remove(cartella.File("prova.pdf"));
    }
    EXPECT_EQ(Byte(cartella.File("altrui")), "intatto");
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
