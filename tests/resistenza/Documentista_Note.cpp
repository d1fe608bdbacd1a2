// Bookmarks, notes, links, and what a document tells about itself, at random.

#include "Documentista.h"

#include "Parole.h"

#include <cmath>
#include <stdexcept>

namespace resistenza {

namespace {

// Annotation flags (ISO 32000-1, 12.5.3): none, hidden, printed, and printed with others.
const std::vector<int> Bandiere = {0, 2, 4, 20, 68, 132};

} // namespace

void Documentista::Segnalibro(const Zona& zona)
{
    const std::string titolo = FuoriPagina("segnalibro", 4);
    const int livello = m_caso.Intero(0, 5);
    CHIAMA(AddBookmark, titolo, livello, m_caso.Intero(0, 5), U(zona.X), U(zona.Y),
           U(zona.X + zona.Larga), U(zona.Y + zona.Alta), F(0, 4));
}

// Of a note: its reader shows it as the window's title. None at all is told, too.
std::string Documentista::Autore()
{
    if (!m_caso.Una(2)) return FuoriPagina("chi", 2);
    Ricorda("chi", "");
    return "";
}

// A reader sets in type itself what has no appearance.
std::string Documentista::TestoDiRiquadro()
{
    return m_maniera == Maniera::Conforme ? FuoriPagina("nota", 8) : FraseComune(m_caso, 8);
}

void Documentista::Nota(const Zona& zona)
{
    const std::string testo = FuoriPagina("nota", 8);
    const std::string titolo = Autore();
    const std::string colore = m_caso.Una(3) ? "" : Colore();
    const bool aperta = m_caso.Una(2);
    CHIAMA(AddNoteIcon, testo, m_caso.Intero(0, 7), U(zona.X), U(zona.Y), aperta, colore, titolo,
           m_caso.Fra(Bandiere));
}

void Documentista::Riquadro(const Zona& zona)
{
    const std::string testo = TestoDiRiquadro();
    const std::string titolo = Autore();
    const std::string sfondo = m_caso.Una(3) ? "" : Colore();
    const std::string inchiostro = Tinta();
    const int lato = m_caso.Intero(0, 2);
    const int stile = m_caso.Intero(0, 4);
    CHIAMA(AddNoteBox, testo, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta), F(5, 14),
           inchiostro, lato, F(0, 3), stile, sfondo, titolo, m_caso.Fra(Bandiere));
}

void Documentista::Timbro(const Zona& zona)
{
    const std::string testo = FuoriPagina("nota", 8);
    const std::string titolo = Autore();
    const std::string colore = m_caso.Una(3) ? "" : Colore();
    CHIAMA(AddNoteStamp, testo, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta),
           m_caso.Intero(0, 14), titolo, colore, m_caso.Fra(Bandiere));
}

void Documentista::Collegamento(const Zona& zona)
{
    const std::string indirizzo =
        "https://esempio.invalid/" + ParolaSemplice(m_caso) + "?a=(1)&b=#x";
    CHIAMA(AddWebLink, indirizzo, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta),
           m_caso.Intero(0, 4), F(0, 3));
}

// The answers of the writer, held against what is known and drawn.
void Documentista::Misure(const Zona& zona)
{
    const auto pari = [](float a, float b) {
        return std::abs(a - b) <= 1e-3F * std::abs(b) + 1e-4F;
    };
    CHIAMA(MoveTo, U(zona.X), U(zona.Y));
    if (!pari(CHIAMA(GetX), U(zona.X)) || !pari(CHIAMA(GetY), U(zona.Y))) {
        throw std::runtime_error("il punto corrente è altrove");
    }
    CHIAMA(DrawLineTo, U(zona.X + zona.Larga), U(zona.Y));
    CHIAMA(SetFontSize, 9.5F);
    if (!pari(CHIAMA(TextHeight), U(9.5))) throw std::runtime_error("altezza del testo sbagliata");
    const std::string base85 = CHIAMA(prToASCII85, "byte\x01\x02");
    if (!base85.ends_with("~>")) throw std::runtime_error("base-85 senza fine");
    const std::string testo = "Versione " + CHIAMA(Version) + " " + base85;
    CHIAMA(DrawText, U(zona.X), U(zona.Y + zona.Alta / 2), testo);
    Attendi(testo);
}

} // namespace resistenza
