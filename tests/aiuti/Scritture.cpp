// Stands in for the calls that write and close files, and fails the one that a test has chosen.
#include "Scritture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace aiuti {

namespace {

struct Guasto
{
    int quale = 0; // none
    int codice = 0;
    Durata durata = Durata::UnaVolta;

    bool Tocca(int numero) const
    {
        if (quale == 0) return false;
        return durata == Durata::UnaVolta ? numero == quale : numero >= quale;
    }
};

// The calls are plain functions, so that what they do stands here.
struct Stato
{
    Guasto scrittura;
    Guasto chiusura;
    std::size_t massimo = std::numeric_limits<std::size_t>::max();
    bool interrompi = false;
    int scritture = 0;
    int chiusure = 0;
    std::size_t byte = 0;
};

Stato stato;

std::ptrdiff_t Fallisci(int codice)
{
    errno = codice;
    return -1;
}

std::ptrdiff_t Scrivi(int descrittore, const void* byte, std::size_t quanti)
{
    const int numero = ++stato.scritture;
    if (stato.scrittura.Tocca(numero)) {
        return stato.scrittura.codice == 0 ? 0 : Fallisci(stato.scrittura.codice);
    }
    if (stato.interrompi && numero % 2 == 1) return Fallisci(EINTR);
    const auto scritti =
        ChiamateDelSistema().Scrivi(descrittore, byte, std::min(quanti, stato.massimo));
    if (scritti > 0) stato.byte += static_cast<std::size_t>(scritti);
    return scritti;
}

int Chiudi(int descrittore)
{
    const int numero = ++stato.chiusure;
    const int esito = ChiamateDelSistema().Chiudi(descrittore);
    if (stato.chiusura.Tocca(numero)) return static_cast<int>(Fallisci(stato.chiusura.codice));
    return stato.interrompi ? static_cast<int>(Fallisci(EINTR)) : esito;
}

} // namespace

ScrittureGuaste::ScrittureGuaste()
{
    EXPECT_EQ(ChiamateInUso.Scrivi, ChiamateDelSistema().Scrivi) << "two at a time";
    stato = {};
    ChiamateInUso = {Scrivi, Chiudi};
}

ScrittureGuaste::~ScrittureGuaste()
{
    ChiamateInUso = ChiamateDelSistema();
}

void ScrittureGuaste::Guasta(int quale, int codice, Durata durata)
{
    stato.scrittura = {quale, codice, durata};
}

void ScrittureGuaste::GuastaChiusura(int quale, int codice, Durata durata)
{
    stato.chiusura = {quale, codice, durata};
}

void ScrittureGuaste::Spezza(std::size_t massimo)
{
    stato.massimo = massimo;
}

void ScrittureGuaste::Interrompi()
{
    stato.interrompi = true;
}

int ScrittureGuaste::Scritture() const
{
    return stato.scritture;
}

int ScrittureGuaste::Chiusure() const
{
    return stato.chiusure;
}

std::size_t ScrittureGuaste::Byte() const
{
    return stato.byte;
}

std::optional<ErroreRuntime> ErroreDi(const std::function<void()>& lavoro)
{
    try {
        lavoro();
    } catch (const ErroreRuntime& errore) {
        return errore;
    }
    return std::nullopt;
}

} // namespace aiuti
