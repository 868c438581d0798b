// The reader, as the page asks it: in a worker from a blob, since a page that is opened as a file can
// start no other. Of texts that come faster than they are read, only the last one is read.

// What is asked first, if several answers are waited for.
const tasks = ["examine", "mend", "document"];

function bytesOfBase64(digits) {
  return Uint8Array.from(atob(digits), (character) => character.charCodeAt(0));
}

export class Reader {
  #worker;
  #failure = null;
  #number = 0;
  #busy = null;
  #waiting = new Map();

  /// `source` is the script of the worker, `wasm` the WebAssembly in base64.
  constructor(source, wasm) {
    const address = URL.createObjectURL(new Blob([source], { type: "text/javascript" }));
    this.#worker = new Worker(address);
    this.#worker.onmessage = (event) => this.#finish(event.data);
    this.#worker.onerror = (event) => this.#fail(event.message || "it does not start");
    this.#worker.postMessage({ wasm: bytesOfBase64(wasm) });
  }

  /// Returns all about a text but its document; null if another text came before this one was begun. Rejected
  /// with an Error if the reader fails, as the others are; the next text can still be read.
  examine(bytes) {
    return this.#ask("examine", bytes);
  }

  /// Returns the document of a text as JSON; null as above. Most of the time goes into its numbers.
  async document(bytes) {
    const answer = await this.#ask("document", bytes);
    return answer && answer.document;
  }

  /// Returns the text with all its safe fixes made; null as above.
  async mend(bytes) {
    const answer = await this.#ask("mend", bytes);
    return answer && answer.mended;
  }

  #ask(task, bytes) {
    return new Promise((resolve, reject) => {
      this.#waiting.get(task)?.resolve(null);
      this.#waiting.set(task, { task, bytes, resolve, reject, number: ++this.#number });
      this.#next();
    });
  }

  #next() {
    const next = tasks.find((task) => this.#waiting.has(task));
    if (this.#busy || !next) return;
    this.#busy = this.#waiting.get(next);
    this.#waiting.delete(next);
    const { task, bytes, number } = this.#busy;
    if (this.#failure) this.#finish({ number, error: this.#failure });
    else this.#worker.postMessage({ task, bytes, number });
  }

  #finish(answer) {
    const { resolve, reject } = this.#busy;
    this.#busy = null;
    if (answer.error) reject(new Error(answer.error));
    else resolve(answer);
    this.#next();
  }

  /// The worker itself fails, and answers nothing from now on.
  #fail(words) {
    this.#failure = words;
    if (this.#busy) this.#finish({ error: words });
  }
}
