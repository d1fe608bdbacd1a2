// Writes documents at random that use every operation of the PDF writer in all its meaningful ways.
//
// Documentista.cpp the document and its pages, _Apertura its switches and where it goes, _Testo
// texts, tables and barcodes, _Disegno paths, pictures, patterns and axes, _Note bookmarks, notes
// and links.
#pragma once

#include "Caso.h"
#include "clsPDFCreator.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace resistenza {

// How often each operation was called, by its name.
using Conto = std::map<std::string, long, std::less<>>;

// Which documents are made. A usual one takes no choice for what the others have besides, so that
// its seed goes on making the same bytes.
enum class Maniera
{
    Usuale,  // by the operations that write files and nothing newer
    Aperta,  // compressed or not, into a file, a function or a stream, from files or from bytes
    Conforme // the same, and one that no reader remarks on
};

// The bytes of a file.
std::string ByteDi(const std::filesystem::path& percorso);

// A part of the page, in points from its upper left corner.
struct Zona
{
    double X, Y, Larga, Alta;
};

// Makes one document. The same seed makes the same bytes with the same program.
class Documentista
{
public:
    // conto outlives this. semi: the folder of the seed pictures; font: one of TrueType files.
    Documentista(std::uint64_t seme, Maniera maniera, Conto& conto, std::filesystem::path semi,
                 const std::filesystem::path& font);

    // Writes the document, and beside it as ".attese" the lines of text that readers must find; of
    // a conforming one as ".fuori" the texts outside its pages.
    void Scrivi(const std::filesystem::path& percorso);

private:
    using Arte = void (Documentista::*)(const Zona&);

    // ---- The document ----
    void Imposta();
    void Carta();
    void Apri(const std::filesystem::path& percorso);
    void CambiaMano();
    void Modelli();
    void Oggetto(int numero);
    void OggettoTardivo();
    void Pagina();
    std::vector<Zona> Posti();
    void Chiudi(const std::filesystem::path& percorso);

    // ---- Switches and places ----
    void Orologio();
    void Interruttori();
    void Comprimi(int livello);
    void Proprieta();
    void ApriFile(const std::filesystem::path& percorso);
    void ApriAltrove(const std::filesystem::path& percorso);
    void ApriColProgramma();
    bool Nuova(int quante) { return m_maniera != Maniera::Usuale && m_caso.Una(quante); }
    std::string FuoriPagina(std::string_view genere, int parole);
    void Ricorda(std::string_view genere, std::string_view testo);

    // ---- Text ----
    void SceglieFont();
    void FontPropri(const std::filesystem::path& font);
    void AggiungiFont(const std::string& file, const std::string& nome, bool incorpora);
    std::string Adatta(std::string testo, double punti);
    void Riga(const Zona& zona);
    void RigaObliqua(const Zona& zona);
    void StatoDelTesto(const Zona& zona);
    void Simboli(const Zona& zona);
    void Paragrafo(const Zona& zona);
    void Tabella(const Zona& zona);
    void Cella(double larga);
    void Codice13(const Zona& zona);
    void Codice39(const Zona& zona);
    void Attendi(std::string_view testo);

    // ---- Drawing ----
    std::string Tinta();
    std::string Colore();
    void Colora();
    void Sfuma(const Zona& zona);
    void Linea(const Zona& zona);
    void Spezzata(const Zona& zona);
    void Curve(const Zona& zona);
    void Figure(const Zona& zona);
    void Immagine(const Zona& zona);
    void Disegna(const std::string& figura, const Zona& zona, const std::string& chiave);
    void Spazio(const Zona& zona);
    void Assi(const Zona& zona);
    void Gioca(const Zona& zona);
    void Piastrella(int numero);
    int Pittura() { return m_caso.Fra(std::vector<int>{1, 3, 4, 5, 6, 7}); }

    // ---- Notes ----
    std::string Autore();
    std::string TestoDiRiquadro();
    void Segnalibro(const Zona& zona);
    void Nota(const Zona& zona);
    void Riquadro(const Zona& zona);
    void Timbro(const Zona& zona);
    void Collegamento(const Zona& zona);
    void Misure(const Zona& zona);

    // User units of a length in points.
    float U(double punti) const { return static_cast<float>(punti / m_unita); }
    float F(double da, double a) { return static_cast<float>(m_caso.Reale(da, a)); }

    Caso m_caso;
    Maniera m_maniera;
    Conto& m_conto;
    std::ofstream m_altrove; // where a document goes that goes to a function or a stream
    clsPDFCreator m_pdf;
    std::filesystem::path m_semi;
    double m_unita = 1; // points of the user unit
    double m_larga = 596, m_alta = 842, m_margine = 0;
    int m_pagine = 0;
    int m_filtri = 0;
    std::vector<std::string> m_fontPropri;
    std::vector<std::string> m_figure;
    std::vector<std::string> m_colorate;   // tilings with colours of their own
    std::vector<std::string> m_daColorare; // tilings that take a colour
    std::vector<std::string> m_oggetti;
    std::string m_tardivo; // the object that is made after the pages
    std::vector<std::string> m_attese;
    std::vector<std::string> m_fuori; // of each text outside the pages its kind and its bytes
};

} // namespace resistenza

// Calls an operation of the writer and counts it by its name: a macro, because only that has the
// name of what it calls.
#define CHIAMA(operazione, ...) (++m_conto[#operazione], m_pdf.operazione(__VA_ARGS__))
