"""The same for pieces that are waited for."""
import asyncio

import kavi


async def pieces():
    for piece in ["Dr. Smith paid $5", ".50 on 3/1/20", "20, ok? It is 10", ":30."]:
        await asyncio.sleep(0)  # the next token
        yield piece


async def main():
    async for utterance in kavi.Reader(everyday=True).stream(pieces(), by="clause"):
        print(utterance.plain.strip(), "|", utterance.words[0].offset)


asyncio.run(main())
