// What one object of a PDF may say of another: pages, fonts, notes, bookmarks. StrutturaPdf.cpp has
// read them, ContenutoPdf.cpp reads what pages draw.
#include "DocumentoPdf.h"

#include "ContenutoPdf.h"
#include "Inflato.h"

#include <algorithm>
#include <set>
#include <string>

namespace aiuti {

namespace {

constexpr int Catalogo = 2;

class Documento
{
public:
    Documento(const std::vector<ValorePdf>& valori, PdfLetto& pdf)
        : m_valori(valori)
        , m_pdf(pdf)
    {
    }

    void Tutto()
    {
        for (int n = 1; n <= Ultimo(); ++n) {
            Riferimenti(n, Oggetto(n));
            Lunghezza(n);
            Gonfia(n);
        }
        AlberoPagine();
        for (int n = 1; n <= Ultimo(); ++n) Contenuti(n);
        m_pdf.NomiMancanti.assign(m_mancanti.begin(), m_mancanti.end());
    }

private:
    int Ultimo() const { return static_cast<int>(m_valori.size()) - 1; }
    bool Esiste(int n) const { return n >= 1 && n <= Ultimo(); }

    const ValorePdf& Oggetto(int n) const
    {
        return m_valori[Esiste(n) ? static_cast<std::size_t>(n) : 0];
    }

    const std::optional<std::string>& Dati(int n) const
    {
        return m_pdf.Dati[static_cast<std::size_t>(n) - 1];
    }

    // The value, or the object that it refers to; nothing (Fine) for what is not there.
    const ValorePdf& Segui(const ValorePdf* valore) const
    {
        if (!valore) return m_valori[0];
        return valore->Tipo == TipoPdf::Riferimento ? Oggetto(valore->Numero) : *valore;
    }

    const ValorePdf& Voce(const ValorePdf& dizionario, std::string_view chiave) const
    {
        return Segui(dizionario.Voce(chiave));
    }

    bool HaNome(const ValorePdf& dizionario, std::string_view chiave, std::string_view nome) const
    {
        return Voce(dizionario, chiave).E(TipoPdf::Nome, nome);
    }

    void Difetto(int n, const std::string& che)
    {
        m_pdf.Difetti.push_back("oggetto " + std::to_string(n) + ": " + che);
    }

    void Riferimenti(int n, const ValorePdf& valore)
    {
        if (valore.Tipo == TipoPdf::Riferimento &&
            (!Esiste(valore.Numero) || m_pdf.Liberi.contains(valore.Numero)))
            Difetto(n, "riferimento a un oggetto che non c'è: " + valore.Testo);
        for (const ValorePdf& elemento : valore.Elementi) Riferimenti(n, elemento);
    }

    void Lunghezza(int n)
    {
        if (!Dati(n)) return;
        const ValorePdf& lunghezza = Voce(Oggetto(n), "Length");
        if (lunghezza.Tipo != TipoPdf::Numero) {
            Difetto(n, "flusso senza /Length");
            return;
        }
        const std::string vera = std::to_string(Dati(n)->size() - FineRiga(n));
        if (lunghezza.Testo != vera)
            Difetto(n, "/Length " + lunghezza.Testo + ", ma i byte sono " + vera);
    }

    bool Compresso(int n) const { return HaNome(Oggetto(n), "Filter", "FlateDecode"); }

    // The length of an embedded font and of deflated bytes is theirs alone, without the line end
    // after: CR CR LF for data that were encoded whole. In a conforming document that holds for
    // all data that are no drawing.
    std::size_t FineRiga(int n) const
    {
        if (Esatto(n)) return 2;
        const bool carattere = Voce(Oggetto(n), "Length1").Tipo == TipoPdf::Numero;
        const bool contato =
            Voce(Oggetto(n), "Length").Testo == std::to_string(Dati(n)->size() - 3);
        if ((carattere || (Compresso(n) && contato)) && Dati(n)->ends_with("\r\r\n")) return 3;
        return Compresso(n) && Dati(n)->ends_with("\r\n") ? 2 : 0;
    }

    bool Esatto(int n) const
    {
        const ValorePdf& oggetto = Oggetto(n);
        const bool dati = HaNome(oggetto, "Type", "Metadata") ||
                          HaNome(oggetto, "Subtype", "Image") ||
                          Voce(oggetto, "Length1").Tipo == TipoPdf::Numero;
        return dati && Dati(n)->ends_with("\r\n") &&
               Voce(oggetto, "Length").Testo == std::to_string(Dati(n)->size() - 2);
    }

    void Gonfia(int n)
    {
        if (!Dati(n) || !Compresso(n)) return;
        auto& dati = m_pdf.Dati[static_cast<std::size_t>(n) - 1];
        auto testo = Inflato(std::string_view(*dati).substr(0, dati->size() - FineRiga(n)));
        if (testo) dati = std::move(testo);
        else Difetto(n, "i dati non sono quelli di un FlateDecode");
    }

    void AlberoPagine()
    {
        const ValorePdf& catalogo = Oggetto(Catalogo);
        if (!HaNome(catalogo, "Type", "Catalog")) Difetto(Catalogo, "non è il catalogo");
        m_radice = &Voce(catalogo, "Pages");
        if (!HaNome(*m_radice, "Type", "Pages")) {
            Difetto(Catalogo, "/Pages non è l'albero delle pagine");
            return;
        }
        const ValorePdf& figli = Voce(*m_radice, "Kids");
        const ValorePdf& conto = Voce(*m_radice, "Count");
        if (figli.Tipo != TipoPdf::Elenco) Difetto(Catalogo, "albero delle pagine senza /Kids");
        if (!conto.E(TipoPdf::Numero, std::to_string(figli.Elementi.size())))
            Difetto(Catalogo, "/Count " + conto.Testo + ", ma le pagine sono " +
                                  std::to_string(figli.Elementi.size()));
        for (const ValorePdf& figlio : figli.Elementi) Figlio(figlio);
        PagineFuoriAlbero();
    }

    void Figlio(const ValorePdf& figlio)
    {
        const ValorePdf& pagina = Segui(&figlio);
        if (figlio.Tipo != TipoPdf::Riferimento || !HaNome(pagina, "Type", "Page")) {
            Difetto(Catalogo, "in /Kids c'è altro che una pagina: " + figlio.Testo);
            return;
        }
        const int n = figlio.Numero;
        if (std::count(m_pdf.NumeriPagina.begin(), m_pdf.NumeriPagina.end(), n) > 0)
            Difetto(n, "pagina due volte nell'albero");
        if (&Voce(pagina, "Parent") != m_radice) Difetto(n, "/Parent non è l'albero delle pagine");
        const bool disegnata = EFlusso(pagina.Voce("Contents"));
        if (!disegnata) Difetto(n, "pagina senza contenuto");
        m_pdf.NumeriPagina.push_back(n);
        m_pdf.NumeriContenuto.push_back(disegnata ? pagina.Voce("Contents")->Numero : 0);
        Annotazioni(n, pagina);
    }

    void Annotazioni(int n, const ValorePdf& pagina)
    {
        const ValorePdf& elenco = Voce(pagina, "Annots");
        if (elenco.Tipo == TipoPdf::Fine) return;
        if (elenco.Tipo != TipoPdf::Elenco) Difetto(n, "/Annots non è un elenco");
        for (const ValorePdf& annotazione : elenco.Elementi)
            if (!HaNome(Segui(&annotazione), "Type", "Annot"))
                Difetto(n, "in /Annots c'è altro che un'annotazione: " + annotazione.Testo);
    }

    void PagineFuoriAlbero()
    {
        const std::set<int> dentro(m_pdf.NumeriPagina.begin(), m_pdf.NumeriPagina.end());
        for (int n = 1; n <= Ultimo(); ++n)
            if (HaNome(Oggetto(n), "Type", "Page") && !dentro.contains(n))
                Difetto(n, "pagina fuori dall'albero");
    }

    bool EFlusso(const ValorePdf* valore) const
    {
        return valore && valore->Tipo == TipoPdf::Riferimento && Esiste(valore->Numero) &&
               Dati(valore->Numero).has_value();
    }

    void Contenuti(int n)
    {
        const ValorePdf& oggetto = Oggetto(n);
        const bool forma = HaNome(oggetto, "Subtype", "Form");
        const bool piastrella = oggetto.Voce("PatternType") && oggetto.Voce("TilingType");
        if ((forma || piastrella) && !Dati(n)) Difetto(n, "disegno senza flusso");
        if ((forma || piastrella) && Dati(n)) Contenuto(n, oggetto);
        if (HaNome(oggetto, "Type", "Page") && EFlusso(oggetto.Voce("Contents")))
            Contenuto(oggetto.Voce("Contents")->Numero, oggetto);
    }

    // proprietario is the dictionary whose resources the stream of object n uses. Pages inherit
    // them from the page tree, and so do forms, which have none of their own: they are painted on
    // pages.
    void Contenuto(int n, const ValorePdf& proprietario)
    {
        if (Oggetto(n).Voce("Filter") && !Compresso(n)) return;
        const ValorePdf* risorse = &Voce(proprietario, "Resources");
        if (risorse->Tipo == TipoPdf::Fine) risorse = &Voce(*m_radice, "Resources");
        if (risorse->Tipo != TipoPdf::Dizionario) Difetto(n, "disegno senza risorse");
        const std::string dove = "oggetto " + std::to_string(n);
        for (const NomeUsato& nome : ControllaContenuto(*Dati(n), dove, m_pdf.Difetti))
            Usato(n, nome, *risorse);
    }

    void Usato(int n, const NomeUsato& nome, const ValorePdf& risorse)
    {
        const ValorePdf* voce = Voce(risorse, nome.Categoria).Voce(nome.Nome);
        const std::string detto = nome.Categoria + " /" + nome.Nome;
        if (!voce) m_mancanti.insert(detto);
        else if (nome.Categoria != "ColorSpace" && !HaNome(Segui(voce), "Type", nome.Categoria))
            Difetto(n, detto + " è un oggetto di un altro tipo");
    }

    const std::vector<ValorePdf>& m_valori;
    PdfLetto& m_pdf;
    const ValorePdf* m_radice = &m_valori[0];
    std::set<std::string> m_mancanti;
};

} // namespace

void ControllaDocumento(const std::vector<ValorePdf>& valori, PdfLetto& pdf)
{
    Documento(valori, pdf).Tutto();
}

} // namespace aiuti
