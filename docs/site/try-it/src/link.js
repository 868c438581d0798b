// A text in the fragment of an address, which the browser sends to nobody.

const key = "text=";

async function through(bytes, stream) {
  return new Uint8Array(await new Response(new Blob([bytes]).stream().pipeThrough(stream)).arrayBuffer());
}

/// Returns the fragment for a text.
export async function fragmentFor(bytes) {
  const packed = await through(bytes, new CompressionStream("deflate-raw"));
  let characters = "";
  for (const byte of packed) characters += String.fromCharCode(byte);
  const digits = btoa(characters).replaceAll("+", "-").replaceAll("/", "_").replaceAll("=", "");
  return `#${key}${digits}`;
}

/// Returns the text of a fragment, or null if it has none that can be read.
export async function textOfFragment(fragment) {
  if (!fragment.startsWith(`#${key}`)) return null;
  try {
    const digits = fragment.slice(key.length + 1).replaceAll("-", "+").replaceAll("_", "/");
    const packed = Uint8Array.from(atob(digits), (character) => character.charCodeAt(0));
    return await through(packed, new DecompressionStream("deflate-raw"));
  } catch {
    return null;
  }
}
