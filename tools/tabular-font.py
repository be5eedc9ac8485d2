"""Makes "Inter Tabular": Inter with its tabular digits, because Qt 6.4 cannot enable font features.

The glyphs are unchanged: the character map points the ten digits at the glyphs of the feature "tnum". The result stays
under the SIL Open Font License and has a name of its own.
"""


def tabular_digits(font):
    """The glyph that the feature "tnum" puts in the place of each glyph it knows."""
    gsub = font["GSUB"].table
    swap = {}
    for record in gsub.FeatureList.FeatureRecord:
        if record.FeatureTag != "tnum":
            continue
        for index in record.Feature.LookupListIndex:
            for table in gsub.LookupList.Lookup[index].SubTable:
                swap.update(getattr(getattr(table, "ExtSubTable", table), "mapping", {}))
    return swap


def make_tabular(font):
    """Turns an open Inter into Inter Tabular, in place."""
    digits = range(ord("0"), ord("9") + 1)
    swap = tabular_digits(font)
    glyphs = {digit: swap[font.getBestCmap()[digit]] for digit in digits}
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap.update(glyphs)
    for name in font["name"].names:
        if name.nameID in (1, 3, 4, 6, 16):
            own = "InterTabular" if name.nameID == 6 else "Inter Tabular"
            name.string = name.toUnicode().replace("Inter", own, 1)
    cff = font["CFF "].cff
    cff.fontNames[0] = cff.fontNames[0].replace("Inter", "InterTabular", 1)
