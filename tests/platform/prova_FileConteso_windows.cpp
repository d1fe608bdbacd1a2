// Does somebody hold the file? Here the system itself answers: an opening that shares nothing
// succeeds only for a file that nobody has open.

#include "FileConteso.h"

#include "Aiuti.h"
#include "LettoreDiFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <windows.h>

using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

constexpr DWORD Tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class FileDiProva
{
public:
    FileDiProva() { std::ofstream(m_cartella.File("f")) << "testo"; }
    std::string Nome() const { return m_cartella.Nome() + "f"; }

private:
    CartellaDiProva m_cartella;
};

struct Chiusura
{
    using pointer = HANDLE;
    void operator()(HANDLE maniglia) const { CloseHandle(maniglia); }
};
using Maniglia = std::unique_ptr<HANDLE, Chiusura>;

// Both ends of a pipe, of which the child inherits one.
struct Tubo
{
    Maniglia Lettura;
    Maniglia Scrittura;
};

Tubo NuovoTubo()
{
    SECURITY_ATTRIBUTES ereditabile = {sizeof ereditabile, nullptr, TRUE};
    HANDLE lettura = nullptr;
    HANDLE scrittura = nullptr;
    EXPECT_NE(CreatePipe(&lettura, &scrittura, &ereditabile, 0), 0);
    return {Maniglia(lettura), Maniglia(scrittura)};
}

// Another process that has opened a file and holds it until the end of this object.
class Altro
{
public:
    Altro(const std::string& percorso, DWORD accesso, DWORD condivisione)
    {
        const std::string comando = "tieni.exe \"" + percorso + "\" " + std::to_string(accesso) +
                                    " " + std::to_string(condivisione);
        Avvia(comando);
        char pronto = 'n';
        DWORD letti = 0;
        EXPECT_NE(ReadFile(m_uscita.Lettura.get(), &pronto, 1, &letti, nullptr), 0);
        EXPECT_EQ(pronto, 's') << comando;
    }
    ~Altro()
    {
        m_ingresso.Scrittura.reset();
        WaitForSingleObject(m_processo.get(), INFINITE);
    }
    Altro(const Altro&) = delete;
    Altro& operator=(const Altro&) = delete;

private:
    void Avvia(std::string comando)
    {
        // Ours alone: the child would keep its own standard input open.
        SetHandleInformation(m_ingresso.Scrittura.get(), HANDLE_FLAG_INHERIT, 0);
        STARTUPINFOA avvio = {};
        avvio.cb = sizeof avvio;
        avvio.dwFlags = STARTF_USESTDHANDLES;
        avvio.hStdInput = m_ingresso.Lettura.get();
        avvio.hStdOutput = m_uscita.Scrittura.get();
        avvio.hStdError = m_uscita.Scrittura.get();
        PROCESS_INFORMATION nato = {};
        ASSERT_NE(CreateProcessA(nullptr, comando.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                 nullptr, &avvio, &nato),
                  0);
        CloseHandle(nato.hThread);
        m_processo.reset(nato.hProcess);
        m_uscita.Scrittura.reset(); // else its early end could not be read
    }

    Tubo m_ingresso = NuovoTubo();
    Tubo m_uscita = NuovoTubo();
    Maniglia m_processo;
};

} // namespace

TEST(FileOccupato, UnFileLiberoNo)
{
    const FileDiProva file;
    EXPECT_FALSE(FileOccupato(file.Nome()));
    EXPECT_FALSE(FileOccupato(file.Nome())); // and asking does not hold it
}

TEST(FileOccupato, ApertoDaUnAltroProcessoSiAncheSeCondivideTutto)
{
    const FileDiProva file;
    for (const DWORD accesso : {DWORD{GENERIC_READ}, DWORD{GENERIC_WRITE}}) {
        for (const DWORD condivisione : {DWORD{0}, DWORD{FILE_SHARE_READ}, Tutti}) {
            {
                const Altro altro(file.Nome(), accesso, condivisione);
                EXPECT_TRUE(FileOccupato(file.Nome())) << accesso << " " << condivisione;
            }
            EXPECT_FALSE(FileOccupato(file.Nome())) << accesso << " " << condivisione;
        }
    }
}

TEST(FileOccupato, ApertoDaQuestoProcessoSi)
{
    const FileDiProva file;
    {
        const aiuti::LettoreDiFile tenuto(file.Nome());
        EXPECT_TRUE(FileOccupato(file.Nome()));
    }
    EXPECT_FALSE(FileOccupato(file.Nome()));
}

TEST(FileOccupato, ApertoConUnAltroNomeSi)
{
    const FileDiProva file;
    fs::create_hard_link(file.Nome(), file.Nome() + "2");
    const Altro altro(file.Nome() + "2", GENERIC_READ, Tutti);
    EXPECT_TRUE(FileOccupato(file.Nome()));
}

TEST(FileOccupato, ChiChiedeSoltantoNonLoTiene)
{
    const FileDiProva file;
    const Altro altro(file.Nome(), FILE_READ_ATTRIBUTES, Tutti);
    EXPECT_FALSE(FileOccupato(file.Nome()));
}

TEST(FileOccupato, CioCheNonSiPuoAprireSi)
{
    const FileDiProva file;
    EXPECT_TRUE(FileOccupato(file.Nome() + "assente"));
}

TEST(FileOccupato, IlFileNonCambia)
{
    const FileDiProva file;
    const auto prima = fs::last_write_time(file.Nome());
    EXPECT_FALSE(FileOccupato(file.Nome()));
    EXPECT_EQ(fs::last_write_time(file.Nome()), prima);
    EXPECT_EQ(aiuti::Byte(file.Nome()), "testo");
}
