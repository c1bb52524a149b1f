"""The text of the verses writes three doubled vowel signs with code points that only one special font understands. The
documents print the code points that Unicode provides for them."""

TANWIN = str.maketrans({"\u0657": "\u08f0", "\u065e": "\u08f1", "\u0656": "\u08f2"})
