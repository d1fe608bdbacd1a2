// A file is told by the number of its disk and its own index there. What follows from a difference
// is in Impronta.cpp.
#include "Impronta.h"

#include "ErroreSistema.h"

#include <cerrno>
#include <memory>
#include <utility>

#include <io.h>
#include <windows.h>

namespace {

struct Chiusura
{
    using pointer = HANDLE;
    void operator()(HANDLE maniglia) const { CloseHandle(maniglia); }
};
using Maniglia = std::unique_ptr<HANDLE, Chiusura>;

// The entry itself, a link rather than its target, for questions only: whoever opens a file so
// hinders nobody's use of it, not even an opening that shares nothing. Null when it cannot be had.
Maniglia ApriPerDomande(const std::string& percorso)
{
    constexpr DWORD tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr DWORD comunqueSia = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT;
    const HANDLE maniglia = CreateFileA(percorso.c_str(), FILE_READ_ATTRIBUTES, tutti, nullptr,
                                        OPEN_EXISTING, comunqueSia, nullptr);
    return Maniglia(maniglia == INVALID_HANDLE_VALUE ? nullptr : maniglia);
}

HANDLE ManigliaDi(int descrittore)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(descrittore));
}

std::uint64_t Indice(const BY_HANDLE_FILE_INFORMATION& voce)
{
    return (std::uint64_t{voce.nFileIndexHigh} << 32) | voce.nFileIndexLow;
}

bool StessaVoce(HANDLE maniglia, std::uint64_t dispositivo, std::uint64_t indice)
{
    BY_HANDLE_FILE_INFORMATION voce = {};
    constexpr DWORD esclusi =
        FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE;
    return GetFileInformationByHandle(maniglia, &voce) != 0 &&
           (voce.dwFileAttributes & esclusi) == 0 && voce.dwVolumeSerialNumber == dispositivo &&
           Indice(voce) == indice;
}

} // namespace

Impronta::Impronta(std::string percorso)
    : m_percorso(std::move(percorso))
{
    Ancora();
    BY_HANDLE_FILE_INFORMATION voce = {};
    if (m_ancora != SenzaAncora &&
        GetFileInformationByHandle(reinterpret_cast<HANDLE>(m_ancora), &voce) != 0) {
        m_dispositivo = voce.dwVolumeSerialNumber;
        m_indice = Indice(voce);
    }
}

Impronta::Impronta(std::string percorso, int descrittore)
    : m_percorso(std::move(percorso))
{
    BY_HANDLE_FILE_INFORMATION voce = {};
    if (GetFileInformationByHandle(ManigliaDi(descrittore), &voce) == 0) {
        throw ErroreSistema(EIO, m_percorso);
    }
    m_dispositivo = voce.dwVolumeSerialNumber;
    m_indice = Indice(voce);
    Ancora();
}

Impronta::~Impronta()
{
    if (m_ancora != SenzaAncora) CloseHandle(reinterpret_cast<HANDLE>(m_ancora));
}

// Some file systems give the number of a removed file to the next one: while the file is closed,
// only a handle of ours makes the number mean this file.
void Impronta::Ancora() noexcept
{
    Maniglia maniglia = ApriPerDomande(m_percorso);
    if (maniglia) m_ancora = reinterpret_cast<std::intptr_t>(maniglia.release());
}

bool Impronta::Vale() const noexcept
{
    const Maniglia voce = ApriPerDomande(m_percorso);
    return voce && StessaVoce(voce.get(), m_dispositivo, m_indice);
}

bool Impronta::Riconosce(int descrittore) const noexcept
{
    return StessaVoce(ManigliaDi(descrittore), m_dispositivo, m_indice);
}

void Impronta::Togli() const noexcept
{
    if (Vale()) ::_unlink(m_percorso.c_str());
}
