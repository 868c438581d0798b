// Diagnostics and findings as a list, each with a way to its place and, if it has a fix, a button.

const most_shown = 200;

function element(name, className, text) {
  const made = document.createElement(name);
  if (className) made.className = className;
  if (text !== undefined) made.textContent = text;
  return made;
}

function button(text, act) {
  const made = element("button", "", text);
  made.type = "button";
  made.addEventListener("click", act);
  return made;
}

function mendButton(problem, onMend) {
  const made = button(problem.fix.safe ? "Fix" : "Fix, if that is meant", () => onMend(problem));
  made.setAttribute("aria-label", `${made.textContent}: ${problem.message}`);
  return made;
}

function describe(problem, onMend) {
  const code = problem.code ? ` [${problem.code}]` : "";
  const severity = problem.severity === "reader" ? "diagnostic" : problem.severity;
  const parts = [element("span", "message", `${severity}: ${problem.message}${code} `)];
  if (problem.advice) parts.push(element("span", "advice", problem.advice));
  if (problem.fix) parts.push(mendButton(problem, onMend));
  return parts;
}

/// Returns an element that tells of some problems of a line.
export function describeProblems(problems, onMend) {
  const all = element("div");
  for (const problem of problems) {
    const one = element("div");
    one.append(...describe(problem, onMend));
    all.append(one);
  }
  return all;
}

/// Shows the problems of an account in a list. `actions` has go(problem) and mend(problem).
export function showProblems(list, { problems, more }, actions) {
  const rows = problems.slice(0, most_shown).map((problem) => {
    const row = element("li", problem.severity);
    if (problem.line !== null) {
      const place = button(`line ${problem.line}`, () => actions.go(problem));
      place.className = "place";
      row.append(place);
    }
    row.append(...describe(problem, actions.mend));
    return row;
  });
  if (problems.length > most_shown)
    rows.push(element("li", "", `and ${problems.length - most_shown} more`));
  for (const [code, count] of more) rows.push(element("li", "", `and ${count} more of ${code}`));
  list.replaceChildren(...rows);
}
