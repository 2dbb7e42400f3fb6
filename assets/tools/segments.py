"""The fourteen-segment display: which cell belongs to which segment, which segments a character lights."""

# 18 rows of nine cells. A to N are the segments, Z belongs to none.
Segment_Grid = (
    "ZAAAAAAAZ",
    "BCZZDZZEF",
    "BCCZDZEEF",
    "BZCZDZEZF",
    "BZCZDZEZF",
    "BZCCDEEZF",
    "BZZCDEZZF",
    "BZZCDEZZF",
    "ZGGGZHHHZ",
    "IZZJKLZZM",
    "IZZJKLZZM",
    "IZJJKLLZM",
    "IZJZKZLZM",
    "IJJZKZLLM",
    "IJZZKZZLM",
    "IJZZKZZLM",
    "IJZZKZZLM",
    "ZNNNNNNNZ",
)

All_Segments = "ABCDEFGHIJKLMN"

# Characters without an entry light nothing.
Segment_Chars = {
    "*": "CEGHJL", "+": "DGHK", ",": "J", "-": "GH", "/": "EJ",
    "0": "ABFEJIMN", "1": "EFM", "2": "AFHJN", "3": "AFHMN", "4": "BDGKH",
    "5": "ABGHMN", "6": "ABGHIMN", "7": "AEJ", "8": "ABFGHIMN", "9": "ABFGHMN",
    "A": "ABFGHIM", "B": "ADFHKMN", "C": "ABIN", "D": "ADFKMN", "E": "ABGHIN",
    "F": "ABGHI", "G": "ABHIMN", "H": "BIFGHM", "I": "ADKN", "J": "FIMN",
    "K": "BEGIL", "L": "BIN", "M": "BCEFIM", "N": "BCFILM", "O": "ABFIMN",
    "P": "ABFGHI", "Q": "ABFILMN", "R": "ABFGHIL", "S": "ABGHMN", "T": "ADK",
    "U": "BFIMN", "V": "BEIJ", "W": "BFIJLM", "X": "CEJL", "Y": "CEK",
    "Z": "AEJN", "[": "ABIN", "\\": "CL", "]": "AFMN", "^": "JL", "_": "N",
}


def Lit_Cells(segments):
    """The (column, row) pairs that a set of segments lights; row 0 is on top."""
    return {(column, row)
            for row, cells in enumerate(Segment_Grid)
            for column, segment in enumerate(cells)
            if segment in segments}
