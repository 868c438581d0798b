/// Lets the tabs of a list show their panels, by the pointer and by the arrow keys.
export function makeTabs(list, onShow) {
  const tabs = [...list.querySelectorAll("[role=tab]")];
  function select(chosen) {
    for (const tab of tabs) {
      const isChosen = tab === chosen;
      tab.setAttribute("aria-selected", String(isChosen));
      tab.tabIndex = isChosen ? 0 : -1;
      document.getElementById(tab.getAttribute("aria-controls")).hidden = !isChosen;
    }
    onShow(chosen.getAttribute("aria-controls"));
  }
  for (const tab of tabs) tab.addEventListener("click", () => select(tab));
  list.addEventListener("keydown", (event) => {
    const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
    if (!step) return;
    const next = tabs[(tabs.indexOf(document.activeElement) + step + tabs.length) % tabs.length];
    select(next);
    next.focus();
  });
}
