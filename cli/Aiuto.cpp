// The texts of --help and --version. The options are declared in Argomenti.cpp; next: Opzioni.h.
#include "Aiuto.h"

namespace cli {

std::string Versione()
{
    return SCALVINO_VERSIONE;
}

std::string TestoVersione()
{
    return "taglie " + Versione() + "\n";
}

std::string TestoAiuto()
{
    return R"(Uso: taglie [OPZIONE]... [N]
Simula N taglie intere di Scalvino (312 carte l'una) e ne scrive il report.
N è un numero intero da 1 in su; se manca vale 1, con --mazzi tutte quelle del
FILE.

Report:
  -f, --forma FORMA        txt (normale), html, pdf, video (le statistiche sul
                           terminale) o nessuna
  -s, --statistiche        solo le statistiche generali, senza i singoli colpi
  -c, --cartella DIR       cartella del report (normale: quella corrente)
  -o, --uscita FILE        nome del report; senza -f la forma è quella che dice
                           (.txt, .htm, .html, .pdf); "-" è lo standard output
  -a, --apri               apre il report finito
      --compatto           PDF compresso, molto più piccolo e senza limite di 82
                           taglie: consigliato
      --caratteri-unici    PDF di un terzo più piccolo: ogni carattere una sola
                           volta
      --numeri COME        separatori dei numeri: sistema (normale), it o c

Taglie:
      --seme S             mescolate ripetibili; S da 0 a 18446744073709551615
      --mazzi FILE         gioca le taglie di FILE, una per riga, invece di
                           mescolare; "-" è lo standard input
      --salva-mazzi FILE   scrive ogni taglia, nella forma che --mazzi legge
      --colpi FILE         scrive i record di ogni taglia, uno per riga

Risultati:
      --dati FORMA         i totali sullo standard output: json o csv; da sola
                           vale anche -f nessuna
  -j, --lavori J           lavori in parallelo, da 0 a 256 (normale: 1; 0: tutti
                           i processori); solo per le statistiche, e
                           senza --salva-mazzi né --colpi
      --avanzamento QUANDO auto (normale), sempre o mai, sullo standard error
  -q, --quieto             non scrive né avanzamento né percorso del report
  -h, --help               mostra questo aiuto
  -V, --version            mostra la versione

L'ultima riga dello standard output è il percorso del report, se ce n'è uno e
senza --dati, -q né -o -. Il report di prima resta com'è finché quello nuovo non
è intero; solo il testo con tutti i colpi cresce al suo posto.

Codici di uscita: 0 fatto, 2 uso sbagliato, 3 richiesta rifiutata, 4 uscita non
scrivibile, 5 guasto interno, 130 interrotto.
)";
}

} // namespace cli
