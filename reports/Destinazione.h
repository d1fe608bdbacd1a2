// Where the bytes of a report go; Ambiente.h says which way. The layouts write here.
#pragma once

#include <memory>
#include <string_view>

namespace Stampe {

// Failures of all of them are of type ErroreRuntime.
class Destinazione
{
public:
    Destinazione() = default;
    virtual ~Destinazione() = default;
    Destinazione(const Destinazione&) = delete;
    Destinazione& operator=(const Destinazione&) = delete;
    Destinazione(Destinazione&&) = delete;
    Destinazione& operator=(Destinazione&&) = delete;

    // Appends all the bytes.
    virtual void Scrivi(std::string_view byte) = 0;

    // The report is whole: it stands in its place from now on, where nobody else has put his own.
    virtual void Finisci() = 0;
};

// For a report that is worth something only when it is whole. Without Finisci it leaves nothing:
// where the surroundings want it so the old report, otherwise no file. nome: the form's own name.
std::unique_ptr<Destinazione> ApriDestinazione(std::string_view nome);

// For a report that is whole after each Scrivi and stays so, whatever becomes of the run: a file is
// closed in between, and a block that does not fit is taken back. Where other reports appear whole,
// what killed runs have left of them is removed (TogliIncompiuti).
std::unique_ptr<Destinazione> ApriCrescente(std::string_view nome);

} // namespace Stampe
