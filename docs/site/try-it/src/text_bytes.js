// Texts as the editor has them, and the bytes that the reader reads. The editor counts UTF-16 units, the
// reader bytes. A byte that is no UTF-8 becomes one unit, U+DC00 more than the byte, which no text of
// Unicode contains, so that any file can be shown and comes back byte for byte.

const firstStray = 0xdc80;
const lastStray = 0xdcff;

function isStray(unit) {
  return unit >= firstStray && unit <= lastStray;
}

/// How long the character at the beginning of `bytes` from `begin` is, or 0 if it is no UTF-8.
function lengthAt(bytes, begin) {
  const lead = bytes[begin];
  const length = lead < 0x80 ? 1 : lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : lead < 0xf5 ? 4 : 0;
  if (begin + length > bytes.length) return 0;
  for (let i = 1; i < length; ++i) {
    if ((bytes[begin + i] & 0xc0) !== 0x80) return 0;
  }
  const second = bytes[begin + 1];
  if ((lead === 0xe0 && second < 0xa0) || (lead === 0xed && second > 0x9f)) return 0;
  if ((lead === 0xf0 && second < 0x90) || (lead === 0xf4 && second > 0x8f)) return 0;
  return length;
}

function decodeWithStrayBytes(bytes) {
  const decoder = new TextDecoder("utf-8", { ignoreBOM: true });
  let text = "";
  let begin = 0;
  for (let i = 0; i < bytes.length; ) {
    const length = lengthAt(bytes, i);
    if (length === 0) {
      text += decoder.decode(bytes.subarray(begin, i)) + String.fromCharCode(0xdc00 + bytes[i]);
      begin = i + 1;
    }
    i += length || 1;
  }
  return text + decoder.decode(bytes.subarray(begin));
}

/// Returns the text for bytes.
export function textOf(bytes) {
  try {
    return new TextDecoder("utf-8", { fatal: true, ignoreBOM: true }).decode(bytes);
  } catch {
    return decodeWithStrayBytes(bytes);
  }
}

/// Returns the bytes of a text.
export function bytesOf(text) {
  const encoder = new TextEncoder();
  const pieces = text.split(/(?<![\ud800-\udbff])([\udc80-\udcff])/);
  if (pieces.length === 1) return encoder.encode(text);
  const parts = pieces.map((piece, i) =>
    i % 2 === 1 ? Uint8Array.of(piece.charCodeAt(0) - 0xdc00) : encoder.encode(piece));
  return joined(parts);
}

/// Returns all bytes of a list one after another.
export function joined(parts) {
  const all = new Uint8Array(parts.reduce((sum, part) => sum + part.length, 0));
  let end = 0;
  for (const part of parts) {
    all.set(part, end);
    end += part.length;
  }
  return all;
}

function byteLength(point) {
  if (point < 0x80 || isStray(point)) return 1;
  return point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
}

/// Returns a map from each of these offsets in bytes, in any order, to the one in the text. It goes over the
/// text once.
export function positionsOf(text, offsets) {
  const positions = new Map();
  let position = 0;
  let offset = 0;
  for (const wanted of [...offsets].sort((a, b) => a - b)) {
    while (offset < wanted && position < text.length) {
      const point = text.codePointAt(position);
      offset += byteLength(point);
      position += point > 0xffff ? 2 : 1;
    }
    positions.set(wanted, position);
  }
  return positions;
}

/// Returns the bytes of a text in the reader's JSON: a string, or {"bytes": "ff"} for other bytes.
export function bytesOfJson(value) {
  if (typeof value === "string") return new TextEncoder().encode(value);
  return Uint8Array.from(value.bytes.match(/../g) ?? [], (digits) => parseInt(digits, 16));
}

/// Returns such a text to be shown.
export function shown(value) {
  return typeof value === "string" ? value : textOf(bytesOfJson(value));
}
