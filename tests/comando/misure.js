// Runs inside the report's page: measures what the browser has made of it and replaces the page by
// the figures, in characters that no encoding can change.
(function () {
    "use strict";
    function riquadro(elemento) {
        var r = elemento.getBoundingClientRect();
        return {sinistra: r.left, destra: r.right, alto: r.top, basso: r.bottom};
    }
    function pezzo(elemento) {
        return {testo: elemento.textContent, colore: getComputedStyle(elemento).color,
                riquadro: riquadro(elemento)};
    }
    function mano(cella) {
        return {
            totale: cella.querySelector("table.norm td").textContent.trim(),
            riquadro: riquadro(cella),
            carte: Array.from(cella.querySelectorAll(".card"), function (carta) {
                return {riquadro: riquadro(carta), valore: pezzo(carta.querySelector(".num")),
                        seme: pezzo(carta.querySelector(".spot"))};
            })
        };
    }
    function colpo(riga) {
        var celle = Array.from(riga.children);
        return {
            numero: celle[0].textContent,
            esiti: celle.slice(1, 5).map(function (c) { return c.textContent; }),
            mani: celle.slice(5).map(mano)
        };
    }
    // Rows of hands only: the tables inside the cells and the headings hold none.
    var righe = Array.from(document.querySelectorAll("table.sample > tbody > tr"));
    var tabelle = Array.from(document.querySelectorAll("table.sample"), function (tabella) {
        return Array.from(tabella.rows).filter(function (riga) {
            return riga.querySelector("table.norm");
        }).map(colpo);
    });
    var misure = {
        codifica: document.characterSet,
        titolo: document.title,
        testo: document.body.innerText,
        celle: righe.filter(function (riga) { return !riga.querySelector("table.norm"); })
            .map(function (riga) {
                return Array.from(riga.children, function (c) { return c.textContent; });
            }),
        tabelle: tabelle.filter(function (colpi) { return colpi.length > 0; }),
        collegamenti: Array.from(document.querySelectorAll("a[href]"), function (a) {
            var href = a.getAttribute("href");
            var nome = href.slice(1);
            return {href: href, testo: a.textContent,
                    arriva: document.getElementById(nome) !== null ||
                            document.getElementsByName(nome).length > 0};
        }),
        immagini: document.images.length
    };
    document.body.textContent = "MISURE:" + encodeURIComponent(JSON.stringify(misure)) + ":FINE";
})();
