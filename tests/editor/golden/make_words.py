#!/usr/bin/env python3
"""Writes the word files the editor's golden cases start from (run by hand, once; the
files are kept). Windows-1252 bytes, CR LF lines."""
import random
from pathlib import Path

here = Path(__file__).parent
rnd = random.Random(32)
DELIMS = {ord(','), ord('\r'), ord('\n'), ord('"')}
USABLE = [bytes([b]) for b in range(256) if b not in DELIMS]
UNDEFINED = [b'\x81', b'\x8d', b'\x8f', b'\x90', b'\x9d']


def cp(text):
    return text.encode('cp1252')


def write(name, words):
    (here / name).write_bytes(b''.join(w + b'\r\n' for w in words))


# Every byte alone and beside letters, so each one meets plain, accented and capital letters
# at the start, the middle and the end of a word.
letters = []
for b in USABLE:
    letters += [b, b + b, b'a' + b, b + b'a', b'e' + b + b'n', b + b'E', cp('\xe4') + b,
                cp('\xc4') + b + b'Z', b + UNDEFINED[len(letters) % 5]]
letters += [b'"a,b"', b'",\r\n"', b'Stra\xdfe', b'a' * 20, b'a' * 21, b'A' * 20]
rnd.shuffle(letters)
write('letters.dat', letters)

# Short words of letters that differ by accent or case alone: many ties to break.
TIES = [cp(c) for c in 'aA\xe4\xc4\xe0\xc0\xe1\xc1\xe2\xe5\xc5\xe3eE\xe9\xc9\xe8\xeboO\xf6\xd6\xf8'
        '\xd8\xf5uU\xfc\xdc\xfayY\xfd\xdd\xff\x9fsS\x9a\x8azZ\x9e\x8ecC\xe7\xc7nN\xf1\xd1iI\xef'
        '\xb5\xdf\xe6\xc6\x9c\x8c\xf0\xd0\xfe\xde\xaa\xba\xb2\xb4\xa8\xb8\x88\x98\xa0 -\'\x00\x01'
        .encode('latin-1').decode('cp1252', 'ignore')] + UNDEFINED
write('ties.dat', [b''.join(rnd.choice(TIES) for _ in range(rnd.randint(1, 5)))
                   for _ in range(4000)])

# Longer words, many with a long beginning in common, of every byte.
STEMS = [cp(s) for s in ['Verwaltungs', 'verwaltungs', '\xdcberschall', 'uberschall',
                         'Stra\xdfenbahn', 'Schifffahrts', 'schifffahrts', '\xc4pfelb\xe4ume',
                         'apfelbaume', 'Donaudampf', 'DONAUDAMPF']]
words = []
for _ in range(8000):
    head = rnd.choice(STEMS) if rnd.random() < 0.5 else b''
    tail = b''.join(rnd.choice(USABLE if rnd.random() < 0.3 else TIES)
                    for _ in range(rnd.randint(0, 12)))
    words.append(head + tail)
write('random.dat', words)

# Words pasted into the word box (UTF-8, one a line): beyond the code page, combining marks
# and letters whose case or decomposition is odd.
PASTED = ['\u03a9mega', '\u03c9mega', '\u4e2d\u6587', 'e\u0301', 'E\u0301', '\xe9', '\xc9',
          'a\u0308pfel', 'A\u0308pfel', '\u0308a', 'a\u0323\u0302', 'a\u0302\u0323', '\u01c5',
          '\u01c6', '\u01c4', '\u212a', 'k', 'K', '\u017f', 's', '\u0130', '\u0131', 'i',
          '\U0001d538', '\U0001f600', '\xdf', '\u1e9e', 'SS', 'ss', 'Stra\xdfe', '\u03a3\u0391\u03a3',
          '\u03c3\u03b1\u03c2', '\u03c2', '\u2167', '\u2177', '\u24d0', '\u24b6', '\u212b', '\xc5',
          '\xe5', '\ufb01sh', 'fish', '\xb5', '\u03bc', '\u039c', '\xff', '\u0178', '\u0153',
          '\u0152', '\u20acuro', '\xa0', ' ', '', 'a\u200bb', 'ab', 'Ab', '\xc4b', '\xe4b', 'AB',
          '\ufeffab', 'x' * 19 + '\xe9', 'Donaudampfschifffahrtsgesellschaft', 'Verwaltungs\u0308',
          'verwaltungs\xe4']
(here / 'pasted.txt').write_text('\n'.join(PASTED), encoding='utf-8')
