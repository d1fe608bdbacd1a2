// The mark of a file: the number that is held is that of the entry itself.

#include "Impronta.h"

#include "prova_FileNuovo.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>

using namespace filenuovo;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

// The descriptors of this process that mean this very name.
std::vector<int> Descrittori(const fs::path& percorso)
{
    std::vector<int> trovati;
    for (const auto& voce : fs::directory_iterator("/proc/self/fd")) {
        std::error_code errore; // the listing's own is gone by then
        if (fs::read_symlink(voce.path(), errore) == percorso) {
            trovati.push_back(std::stoi(voce.path().filename().string()));
        }
    }
    return trovati;
}

} // namespace

TEST(Impronta, TieneLaVoceStessaENonCioACuiConduce)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("altrui"), "prezioso");
    fs::create_symlink("altrui", cartella.File("f"));
    const Impronta impronta(cartella.File("f").string());
    EXPECT_EQ(Descrittori(cartella.File("altrui")), std::vector<int>{});
    EXPECT_EQ(Descrittori(cartella.File("f")).size(), 1U);
}

TEST(Impronta, IProgrammiAvviatiNonLaEreditano)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "x");
    const Impronta impronta(cartella.File("f").string());
    const auto descrittori = Descrittori(cartella.File("f"));
    ASSERT_EQ(descrittori.size(), 1U);
    EXPECT_NE(::fcntl(descrittori.front(), F_GETFD) & FD_CLOEXEC, 0);
}
