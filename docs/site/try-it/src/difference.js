// What a difference in the unified format says about the new text.

/// Returns { added, removed }: the numbers of the lines of the new text that are not in the old one, and
/// how many lines of the old text are not in the new one.
export function changesOf(difference) {
  const added = new Set();
  let removed = 0;
  let number = 0;
  // The first two lines name the texts.
  for (const line of difference.split("\n").slice(2)) {
    const place = /^@@ -\S+ \+(\d+)/.exec(line);
    if (place) number = Number(place[1]) - 1;
    else if (line.startsWith("+")) added.add(++number);
    else if (line.startsWith("-")) ++removed;
    else if (line.startsWith(" ")) ++number;
  }
  return { added, removed };
}

export function classOfDifferenceLine(number, text) {
  if (text.startsWith("@@")) return "place";
  if (number <= 2) return "";
  return text.startsWith("+") ? "added" : text.startsWith("-") ? "removed" : "";
}
