// Runs the reader beside the page, so that typing never waits for it. The first message holds the
// WebAssembly; each later one { number, bytes, task } is answered by one with the same number, which has an
// `error` in words if the reader fails.

const utf8 = new TextDecoder("utf-8", { ignoreBOM: true });
let wasm = null;
let reader = null;

function answer(make) {
  reader[make]();
  const begin = reader._web_answer();
  return reader.HEAPU8.slice(begin, begin + reader._web_answer_size());
}

function read(bytes) {
  const room = reader._web_room(bytes.length);
  reader.HEAPU8.set(bytes, room);
  reader._web_read();
}

function found() {
  const { findings, more } = JSON.parse(utf8.decode(answer("_web_findings")));
  return { findings, more };
}

const tasks = {
  examine: () => ({
    account: JSON.parse(utf8.decode(answer("_web_account"))),
    ...found(),
    canonical: answer("_web_canonical_text"),
    difference: answer("_web_difference"),
  }),
  document: () => ({ document: utf8.decode(answer("_web_document")) }),
  mend: () => ({ mended: answer("_web_mended_text") }),
};

async function answerTo({ number, bytes, task }) {
  try {
    reader ??= await self.makeQuillReader({ wasmBinary: wasm });
    read(bytes);
    return { number, ...tasks[task]() };
  } catch (error) {
    // Its memory may be in any state, so the next text gets a new reader.
    reader = null;
    return { number, error: String(error) };
  }
}

self.onmessage = async ({ data }) => {
  if (data.wasm) wasm = data.wasm;
  else self.postMessage(await answerTo(data));
};
