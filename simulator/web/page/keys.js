/* ---- The keys: each press is one message down and one message up, whatever has pressed it. ---- */

const KEYS_OF_KEYBOARD = new Map([
  ["ArrowUp", "up"], ["ArrowDown", "down"], ["ArrowLeft", "left"], ["ArrowRight", "right"], ["Enter", "ok"],
  ["*", "star"], ["#", "hash"], ["+", "volume-up"], ["-", "volume-down"], ["Escape", "hook"], ["h", "hook"],
  ..."0123456789".split("").map((digit) => [digit, digit]),
]);

class Keys {
  constructor(send) {
    this.send = send;
    this.usesKeyboard = true;
    this.holders = new Map(); // what holds the key (a pointer, a key of the keyboard) -> its name
  }

  down(holder, name) {
    if (this.holders.has(holder)) return;
    this.holders.set(holder, name);
    this.show(name);
    this.send(`down ${name}`);
  }

  up(holder) {
    const name = this.holders.get(holder);
    if (name === undefined) return;
    this.holders.delete(holder);
    this.show(name);
    this.send(`up ${name}`);
  }

  upAll() {
    for (const holder of [...this.holders.keys()]) this.up(holder);
  }

  /* In a task of its own: a browser that has to draw after an event lets frames of the panel wait until it has. */
  show(name) {
    setTimeout(() => {
      const isHeld = [...this.holders.values()].includes(name);
      document.querySelector(`[data-key="${name}"]`)?.classList.toggle("pressed", isHeld);
    });
  }
}

function listenToButton(keys, button) {
  const name = button.dataset.key;
  button.addEventListener("pointerdown", (event) => {
    if (event.button !== 0) return;
    event.preventDefault();
    button.setPointerCapture(event.pointerId);
    keys.down(event.pointerId, name);
  });
  for (const end of ["pointerup", "pointercancel", "lostpointercapture"])
    button.addEventListener(end, (event) => keys.up(event.pointerId));
  button.addEventListener("mousedown", (event) => event.preventDefault()); // the focus stays where it is
  button.addEventListener("contextmenu", (event) => event.preventDefault());
  button.addEventListener("click", (event) => {
    if (event.detail !== 0) return;
    keys.down("click", name); // from assistive technology: there was no pointer
    keys.up("click");
  });
}

/* The handset is another hook key, for those who see it. Where it lies the program says. */
function listenToHandset(keys, handset) {
  handset.addEventListener("pointerdown", (event) => {
    if (event.button !== 0) return;
    event.preventDefault();
    keys.down("handset", "hook");
  });
  for (const end of ["pointerup", "pointercancel", "pointerleave"])
    handset.addEventListener(end, () => keys.up("handset"));
}

/* Enter and space press the button that has the focus; without one, Enter is OK. */
function nameOfKeyEvent(keys, event) {
  if (event.target.closest?.("#exchange")) return undefined; // is written there
  if (event.ctrlKey || event.altKey || event.metaKey || byId("keys").open) return undefined;
  const isPress = event.key === "Enter" || event.key === " ";
  const focused = document.activeElement?.closest("button");
  if (focused && isPress) return focused.dataset.key;
  return keys.usesKeyboard ? KEYS_OF_KEYBOARD.get(event.key) : undefined;
}

function listenToKeyboard(keys) {
  window.addEventListener("keydown", (event) => {
    const name = nameOfKeyEvent(keys, event);
    if (!name) return;
    event.preventDefault();
    if (!event.repeat) keys.down(event.code, name);
  });
  window.addEventListener("keyup", (event) => {
    if (keys.holders.has(event.code)) event.preventDefault();
    keys.up(event.code);
  });
  window.addEventListener("blur", () => keys.upAll());
  document.addEventListener("visibilitychange", () => keys.upAll());
}
