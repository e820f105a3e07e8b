// Speaks what a language model writes, sentence by sentence, while it goes on writing.
import {load} from 'kavi-tn';

const {reader} = await load({everyday: true});
const english = reader({everyday: true});

async function* pieces() { // as a model's tokens come
  const text = "It's on Jan. 3, 2024. We meet at 5:30 p.m. and it costs $1.5 million! Then <emphasis=strong>we</emphasis> go.";
  for (let at = 0; at < text.length; at += 4) yield text.slice(at, at + 4);
}
for await (const {plain} of english.stream(pieces())) console.log(plain.trim());

const stream = english.openStream({by: 'clause'}); // the same by hand, interrupted once
for (const piece of ['Yes, that is ', 'right. But then ag', 'ain']) {
  for (const {words} of stream.add(piece)) console.log(words.map(({word, offset}) => `${word} ${offset}`).join(', '));
}
stream.forget(); // somebody speaks: what has not been handed over is dropped
console.log(stream.add('Sorry.').concat(stream.end()).map(({plain}) => plain).join());
stream.free();
