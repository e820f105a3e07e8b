"""Speaks what a language model writes, sentence by sentence, while it goes on writing."""
import kavi


def pieces():  # as a model's tokens come
    text = "It's on Jan. 3, 2024. We meet at 5:30 p.m. and it costs $1.5 million! Then <emphasis=strong>we</emphasis> go."
    yield from (text[at:at + 4] for at in range(0, len(text), 4))


reader = kavi.Reader(everyday=True)
for utterance in reader.stream(pieces()):
    print(utterance.plain.strip())

stream = reader.open_stream(by="clause")  # the same by hand, interrupted once
for piece in ["Yes, that is ", "right. But then ag", "ain"]:
    for utterance in stream.add(piece):
        print([(word.text, word.offset, word.length) for word in utterance.words])
stream.forget()  # somebody speaks: what has not been handed over is dropped
print([utterance.plain for utterance in stream.add("Sorry.") + stream.end()])
