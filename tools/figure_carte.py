"""The court cards: upper half of each figure, drawn twice. Frame: x 14.5 to 56.5, y 6.5 to 89.5."""

from tratti_carte import (BIANCO, BLU, ORO, ROSSO, capovolto, disco, rettangolo, seme, tinta,
                          tratto)

CREMA, PELLE, INCHIOSTRO = "#fffaec", "#f6d7b4", "#20202a"
ACCIAIO, LEGNO, VERDE = "#9aa5b4", "#8a5a2b", "#2e7d32"
CAPELLI = {"C": "#e0a94a", "Q": "#b5652d", "F": "#6b4423", "P": "#3d3a40"}
BARBE = {"C": "#c98f3a", "Q": "#9a5526", "F": "#5c3b20", "P": "#6b6b73"}


def pezzo(disegno, interno, spessore=0.8):
    """A filled part with an ink outline."""
    return tratto(disegno, interno, INCHIOSTRO, spessore)


def stoffe(segno):
    """Robe and sleeve colours; neighbours in the pack differ."""
    return (ROSSO, BLU) if segno in "CP" else (BLU, ROSSO)


def veste(segno):
    fondo, maniche = stoffe(segno)
    busto = pezzo("M15,48 L15,40 Q16.4,35.4 23,33.6 L30,31 L41,31 L48,33.6 Q54.6,35.4 56,40 "
                  "L56,48Z", fondo, 0.9)
    pettorina = pezzo("M30.5,33 L40.5,33 L41.5,48 L29.5,48Z", ORO, 0.7)
    losanga = seme(segno, 35.5, 44, 3, colore=tinta(segno))
    orli = tratto("M26.6,34.4 L25.4,48 M44.4,34.4 L45.6,48", bordo=ORO, spessore=1.1)
    return busto + orli + manica_sinistra(maniche) + pettorina + losanga


def manica_sinistra(colore):
    manica = pezzo("M15,48 L15,40 Q15.8,36.8 19.4,34.9 Q23.4,38.6 22.4,48Z", colore)
    pieghe = "".join(tratto(f"M15.6,{y + 0.9:g} Q18.6,{y - 0.7:g} {x:g},{y:g}", bordo=ORO,
                            spessore=0.9)
                     for x, y in ((20.6, 38.6), (21.4, 41.6), (21.6, 44.6)))
    return manica + pieghe


def braccio(segno):
    """Forearm, cuff and fist on the right, in front of what the figure holds."""
    manica = pezzo("M43.6,48 Q43.8,43.6 47.6,40.4 L54.2,41.2 Q55.6,44 56,48Z", stoffe(segno)[1])
    polsino = pezzo("M47,40.9 L48,38.4 L54.6,38.9 L54.6,41.6Z", ORO, 0.7)
    pugno = pezzo("M48.8,38.5 Q47.9,35 50.9,34.5 Q54.2,34.4 53.9,38.9Z", PELLE, 0.7)
    dita = tratto("M50.4,36.2 L53.6,36.4 M50.4,37.6 L53.6,37.8", bordo=INCHIOSTRO, spessore=0.4)
    return manica + polsino + pugno + dita


def viso():
    testa = pezzo("M29.7,19.6 L41.3,19.6 L41.3,25 Q40.8,32.6 35.5,33 Q30.2,32.6 29.7,25Z", PELLE)
    occhi = (tratto("M31.9,23.6 Q33,22.7 34.1,23.6 M36.9,23.6 Q38,22.7 39.1,23.6",
                    bordo=INCHIOSTRO, spessore=0.6)
             + disco(33.1, 24, 0.65, INCHIOSTRO) + disco(37.9, 24, 0.65, INCHIOSTRO))
    ciglia = tratto("M31.6,22 Q33,21.1 34.4,21.8 M36.6,21.8 Q38,21.1 39.4,22", bordo=INCHIOSTRO,
                    spessore=0.55)
    naso = tratto("M35.7,23.6 L35,27 L36.1,27.2", bordo=INCHIOSTRO, spessore=0.5)
    return testa + occhi + ciglia + naso


def bocca():
    return tratto("M34,29.8 Q35.5,30.9 37,29.8", bordo=ROSSO, spessore=1)


def re(segno):
    capelli = (pezzo("M29.9,18.6 Q25.4,22 26.6,26 Q24.8,29 28,31.4 Q30.4,31.6 31,28Z", BARBE[segno])
               + pezzo("M41.1,18.6 Q45.6,22 44.4,26 Q46.2,29 43,31.4 Q40.6,31.6 40,28Z",
                       BARBE[segno]))
    barba = pezzo("M29.8,25.6 Q31.6,28.4 35.5,27.6 Q39.4,28.4 41.2,25.6 L41,31 Q39,37.4 35.5,39 "
                  "Q32,37.4 30,31Z", BARBE[segno], 0.7)
    labbra = tratto("M34.2,30.1 Q35.5,30.9 36.8,30.1", bordo="#f2a9a0", spessore=1)
    riccioli = tratto("M33,33 L33.8,36 M35.5,33 L35.5,37 M38,33 L37.2,36", bordo=INCHIOSTRO,
                      spessore=0.45)
    ermellino = pezzo("M23,33.8 Q29,40.8 35.5,40.8 Q42,40.8 48,33.8 L42.6,30.6 L28.4,30.6Z", BIANCO,
                      0.7)
    code = tratto("M27.4,34.8 L27.8,36.2 M30.8,36.6 L31,38 M40.2,36.6 L40,38 M43.6,34.8 L43.2,36.2",
                  bordo=INCHIOSTRO, spessore=0.9)
    return ermellino + code + capelli + viso() + barba + labbra + riccioli + corona_re(segno)


def corona_re(segno):
    punte = pezzo("M29,20.4 L26.6,11.8 L31.2,15 L35.5,9 L39.8,15 L44.4,11.8 L42,20.4Z", ORO)
    fodera = tratto("M29.3,18.4 L41.7,18.4", bordo=stoffe(segno)[0], spessore=1.5)
    perle = "".join(disco(x, y, 1, BIANCO, INCHIOSTRO, 0.5)
                    for x, y in ((26.6, 11.4), (35.5, 8.9), (44.4, 11.4)))
    return punte + fodera + perle


def donna(segno):
    capelli = pezzo("M35.5,15 Q26.6,15.4 26.2,24 Q26.4,29 24.4,32.6 Q27.6,36.4 31.4,34 L39.6,34 "
                    "Q43.4,36.4 46.6,32.6 Q44.6,29 44.8,24 Q44.4,15.4 35.5,15Z", CAPELLI[segno])
    ciocche = tratto("M28,23 Q28.4,29 27,32.6 M43,23 Q42.6,29 44,32.6", bordo=INCHIOSTRO,
                     spessore=0.45)
    collo = pezzo("M32.8,31 L38.2,31 L40,34.4 Q35.5,38.4 31,34.4Z", PELLE, 0.6)
    colletto = pezzo("M28.6,33.2 Q30.6,37.6 35.5,38.4 Q40.4,37.6 42.4,33.2 L45,36 "
                     "Q41,40.6 35.5,40.6 Q30,40.6 26,36Z", BIANCO, 0.7)
    gioiello = disco(35.5, 38.4, 1.2, stoffe(segno)[0], INCHIOSTRO, 0.5)
    guance = disco(31.6, 27, 0.9, "#f0b09a") + disco(39.4, 27, 0.9, "#f0b09a")
    frangia = pezzo("M29.6,22.4 Q30,18.4 35.5,18.4 Q41,18.4 41.4,22.4 Q38.6,19.8 35.5,20 "
                    "Q32.4,19.8 29.6,22.4Z", CAPELLI[segno], 0.5)
    return (capelli + ciocche + collo + colletto + gioiello + viso() + guance + bocca() + frangia
            + corona_donna(segno))


def corona_donna(segno):
    punte = pezzo("M28.8,19 Q28,14.8 29.6,12.6 L32.4,15.4 L35.5,10.6 L38.6,15.4 L41.4,12.6 "
                  "Q43,14.8 42.2,19 Q35.5,16.6 28.8,19Z", ORO)
    perle = "".join(disco(x, y, 0.9, BIANCO, INCHIOSTRO, 0.45)
                    for x, y in ((29.5, 12.2), (35.5, 10.2), (41.5, 12.2)))
    return punte + perle + disco(35.5, 15.6, 1.3, stoffe(segno)[0], INCHIOSTRO, 0.45)


def fante(segno):
    capelli = pezzo("M28.8,17.6 Q25.4,24 27.2,31 Q30,32.6 32,30.6 L39,30.6 Q41,32.6 43.8,31 "
                    "Q45.6,24 42.2,17.6Z", CAPELLI[segno])
    colletto = pezzo("M27.4,32.6 L35.5,37.8 L43.6,32.6 L41.6,30.4 L29.4,30.4Z", BIANCO, 0.7)
    cappello = pezzo("M26.4,19.6 Q25,12 34,11 Q44.4,10 45.6,15.4 Q46,18.4 44.2,19.6 Q35.5,16.8 "
                     "26.4,19.6Z", stoffe(segno)[1])
    fascia = tratto("M27.2,19.5 Q35.5,16.8 43.8,19.5", bordo=ORO, spessore=1.6)
    piuma = (pezzo("M30.6,16 Q26,8.6 19.6,9.4 Q21,11 20.2,12.4 Q22.4,12.2 22.2,13.8 Q25.6,12.8 "
                   "29.4,17.4Z", BIANCO, 0.6)
             + tratto("M22,10.8 Q26.4,11.4 29.6,16.2", bordo=INCHIOSTRO, spessore=0.4))
    return colletto + capelli + viso() + bocca() + cappello + fascia + piuma


def spada():
    return (pezzo("M50.6,33.6 L50.6,12 L51.5,9.4 L52.4,12 L52.4,33.6Z", ACCIAIO, 0.5)
            + tratto("M48.2,33 L54.8,33", bordo=INCHIOSTRO, spessore=2.2)
            + tratto("M48.4,33 L54.6,33", bordo=ORO, spessore=1.3))


def scettro(segno):
    return (tratto("M51.5,38 L51.5,16", bordo=INCHIOSTRO, spessore=2)
            + tratto("M51.5,38 L51.5,16", bordo=ORO, spessore=1.1)
            + disco(51.5, 13.4, 3.1, ORO, INCHIOSTRO, 0.7)
            + disco(51.5, 13.4, 1.3, stoffe(segno)[0]))


def alabarda():
    return (tratto("M51.5,38 L51.5,13", bordo=INCHIOSTRO, spessore=2)
            + tratto("M51.5,38 L51.5,13", bordo=LEGNO, spessore=1.2)
            + pezzo("M51.5,8 L53,13.4 L51.5,15.4 L50,13.4Z", ACCIAIO, 0.6)
            + pezzo("M52,16 Q55.6,14.6 55.4,18.8 Q55.6,22.4 52,21.4Z", ACCIAIO, 0.6))


def fiore(segno):
    petali = "".join(disco(51.5 + dx, 18.4 + dy, 2, stoffe(segno)[1], INCHIOSTRO, 0.45)
                     for dx, dy in ((0, -2.5), (2.4, -0.8), (1.5, 2), (-1.5, 2), (-2.4, -0.8)))
    foglia = pezzo("M51.5,29.4 Q47.4,28.6 47.8,25.4 Q51,25.8 51.5,29.4Z", VERDE, 0.45)
    return (tratto("M51.5,36 L51.5,20", bordo=VERDE, spessore=1.3) + foglia + petali
            + disco(51.5, 18.4, 1.5, ORO, INCHIOSTRO, 0.45))


def oggetto(nome, segno):
    if nome == "K":
        return spada() if segno in "CP" else scettro(segno)
    return fiore(segno) if nome == "Q" else alabarda()


def figura(nome, segno):
    """nome: "J", "Q" or "K". The two halves meet on a gold line in the middle of the card."""
    persona = {"J": fante, "Q": donna, "K": re}[nome]
    meta = (veste(segno) + oggetto(nome, segno) + persona(segno) + braccio(segno)
            + seme(segno, 20.2, 16.4 if nome != "J" else 20.4, 4.4))
    return (rettangolo(14.5, 6.5, 42, 83, CREMA) + meta + capovolto(meta)
            + tratto("M15,48 L56,48", bordo=ORO, spessore=1.6)
            + rettangolo(14.5, 6.5, 42, 83, "none", bordo=BLU))
