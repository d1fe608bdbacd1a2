"""The standard 14 fonts (ISO 32000-1, 9.6.2.2) of the reference PDF writer: names and descriptors, after
the public metrics of these faces."""

NOMI = {}
for _famiglia, _nomi in (
        ("Arial", ("Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique")),
        ("TimesNewRoman", ("Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic")),
        ("CourierNew", ("Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"))):
    for _stile, _nome in zip(("", ",Bold", ",Italic", ",BoldItalic"), _nomi):
        NOMI[_famiglia + _stile] = _nome

# Flags, box, slant, ascent, descent, height of capitals, of small letters (none for signs), stem.
_MISURE = {
    "Helvetica": (32, "-166 -225 1000 931", "0", 718, -207, 718, 523, 88),
    "Helvetica-Bold": (32, "-170 -228 1003 962", "0", 718, -207, 718, 532, 140),
    "Helvetica-Oblique": (96, "-170 -225 1116 931", "-12", 718, -207, 718, 523, 88),
    "Helvetica-BoldOblique": (96, "-174 -228 1114 962", "-12", 718, -207, 718, 532, 140),
    "Times-Roman": (34, "-168 -218 1000 898", "0", 683, -217, 662, 450, 84),
    "Times-Bold": (34, "-168 -218 1000 935", "0", 683, -217, 676, 461, 139),
    "Times-Italic": (98, "-169 -217 1010 883", "-15.5", 683, -217, 653, 441, 76),
    "Times-BoldItalic": (98, "-200 -218 996 921", "-15", 683, -217, 669, 462, 121),
    "Courier": (35, "-23 -250 715 805", "0", 629, -157, 562, 426, 51),
    "Courier-Bold": (35, "-113 -250 749 801", "0", 629, -157, 562, 439, 106),
    "Courier-Oblique": (99, "-27 -250 849 805", "-12", 629, -157, 562, 426, 51),
    "Courier-BoldOblique": (99, "-57 -250 869 801", "-12", 629, -157, 562, 439, 106),
    "Symbol": (4, "-180 -293 1090 1010", "0", 1010, -293, 1010, 0, 85),
    "ZapfDingbats": (4, "-1 -143 981 820", "0", 820, -143, 820, 0, 90),
}

DESCRITTORI = {
    nome: f"/Flags {segni} /FontBBox [{riquadro}] /ItalicAngle {pende} /Ascent {sale} /Descent {scende} "
          f"/CapHeight {alte} " + (f"/XHeight {basse} " if basse else "") + f"/StemV {asta}"
    for nome, (segni, riquadro, pende, sale, scende, alte, basse, asta) in _MISURE.items()}
