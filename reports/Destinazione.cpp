// The ways of a report into its place, in the safe files of platform/ or to standard output.
#include "Destinazione.h"

#include "Ambiente.h"
#include "FileIntero.h"
#include "FileNuovo.h"
#include "UscitaStandard.h"

#include <string>
#include <utility>

namespace Stampe {

namespace {

class NelPosto : public Destinazione
{
public:
    explicit NelPosto(std::string percorso)
        : m_file(std::move(percorso))
    {
    }

    void Scrivi(std::string_view byte) override { m_file.Scrivi(byte); }

    void Finisci() override
    {
        m_file.Chiudi();
        m_file.PretendiNostro(); // nobody else's file is opened as the report
        m_file.Conserva();
    }

private:
    FileNuovo m_file;
};

class APezziInteri : public Destinazione
{
public:
    explicit APezziInteri(std::string percorso)
        : m_file(std::move(percorso))
    {
    }

    // Closed each time, so that what stands in it is whole whenever the run ends.
    void Scrivi(std::string_view byte) override
    {
        if (m_iniziato) m_file.Riapri();
        m_file.Scrivi(byte);
        m_file.Chiudi();
        m_file.Conserva();
        m_iniziato = true;
    }

    void Finisci() override { m_file.PretendiNostro(); }

private:
    FileNuovo m_file;
    bool m_iniziato = false;
};

class Intera : public Destinazione
{
public:
    explicit Intera(std::string percorso)
        : m_file(std::move(percorso))
    {
    }

    void Scrivi(std::string_view byte) override { m_file.Scrivi(byte); }
    void Finisci() override { m_file.MettiAPosto(); }

private:
    FileIntero m_file;
};

class SuUscita : public Destinazione
{
public:
    SuUscita() { PreparaUscita(); }

    void Scrivi(std::string_view byte) override { ScriviInUscita(byte); }
    void Finisci() override { PretendiUscitaArrivata(); }
};

} // namespace

std::unique_ptr<Destinazione> ApriDestinazione(std::string_view nome)
{
    switch (AmbienteInUso.Via) {
    case ViaReport::UscitaStandard:
        return std::make_unique<SuUscita>();
    case ViaReport::Intero:
        return std::make_unique<Intera>(PercorsoForma(nome));
    default:
        return std::make_unique<NelPosto>(PercorsoForma(nome));
    }
}

std::unique_ptr<Destinazione> ApriCrescente(std::string_view nome)
{
    if (AmbienteInUso.Via == ViaReport::UscitaStandard) return std::make_unique<SuUscita>();
    const std::string percorso = PercorsoForma(nome);
    if (AmbienteInUso.Via == ViaReport::Intero) TogliIncompiuti(percorso);
    return std::make_unique<APezziInteri>(percorso);
}

} // namespace Stampe
