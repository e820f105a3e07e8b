// What TypeScript makes of kavi.d.ts; it is compiled, not run.
import {EVERYDAY, load, type Line, type Reader, type Result, type Word} from 'kavi-tn';

const kavi = await load({everyday: true});
const reader: Reader = kavi.reader({everyday: [...EVERYDAY], lexicon: 'a\tb', capacity: 0, americanDates: true});
const spoken: string = reader.normalize('a');
const result: Result = reader.read(spoken, {rules: true});
const word: Word | undefined = result.sentences[0]?.words[0];
const marks: string[] | undefined = word?.marks;
for await (const line of kavi.lines(['a'])) {
  const of_file: Line = line;
  console.log(of_file.number, marks);
}
reader.free();
// @ts-expect-error: a text is a string
kavi.normalize(5);
