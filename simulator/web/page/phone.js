"use strict";

/* The levels of the panel as opacity of its ink: the bare panel shows the glass behind it. */
const INK = [18, 28, 22];
const LEVELS = new Uint32Array(Uint8Array.from([0, 92, 168, 238].flatMap((opacity) => [...INK, opacity])).buffer);

const KEYS_OF_KEYBOARD = new Map([
  ["ArrowUp", "up"], ["ArrowDown", "down"], ["ArrowLeft", "left"], ["ArrowRight", "right"], ["Enter", "ok"],
  ["*", "star"], ["#", "hash"], ["+", "volume-up"], ["-", "volume-down"], ["Escape", "hook"], ["h", "hook"],
  ..."0123456789".split("").map((digit) => [digit, digit]),
]);

const phone = document.querySelector(".phone");
const canvas = document.getElementById("panel");
const pen = canvas.getContext("2d");

/* ---- The connection: opens the socket, and opens it again when it breaks. ---- */

class Link {
  static FIRST_PAUSE = 250;
  static LONGEST_PAUSE = 3000;

  constructor(handlers) {
    this.handlers = handlers;
    this.pause = Link.FIRST_PAUSE;
    this.wasOpen = false;
    this.hasEnded = false;
    this.open();
  }

  open() {
    this.socket = new WebSocket(`ws://${location.host}/socket${location.search}`);
    this.socket.binaryType = "arraybuffer";
    this.socket.onopen = () => this.opened();
    this.socket.onmessage = (event) => this.received(event.data);
    this.socket.onclose = () => this.closed();
  }

  send(text) {
    if (this.socket.readyState === WebSocket.OPEN) this.socket.send(text);
  }

  opened() {
    this.pause = Link.FIRST_PAUSE;
    this.wasOpen = true;
    this.hasEnded = false;
    this.handlers.opened();
  }

  received(data) {
    if (data instanceof ArrayBuffer) {
      this.send(`seen ${this.handlers.frame(data)}`);
      return;
    }
    const message = JSON.parse(data);
    if (message.ended) this.hasEnded = true;
    else this.handlers.rows(message.rows);
  }

  closed() {
    if (this.hasEnded) this.handlers.ended();
    else if (this.wasOpen) this.handlers.broken();
    setTimeout(() => this.open(), this.pause);
    this.pause = Math.min(2 * this.pause, Link.LONGEST_PAUSE);
  }
}

/* ---- The panel ---- */

function variantOf(width, height) {
  if (height < 64) return "wp1";
  return width < 200 ? "narrow" : "plain";
}

function setPanelSize(width, height) {
  if (canvas.width === width && canvas.height === height) return;
  canvas.width = width;
  canvas.height = height;
  phone.dataset.panel = variantOf(width, height);
  document.documentElement.style.setProperty("--panel-width", width);
  document.documentElement.style.setProperty("--panel-height", height);
  fit();
}

/* Returns the frame's number. How a frame is packed is told in FrameMessage.h. */
function drawFrame(data) {
  const header = new DataView(data, 0, 8);
  const width = header.getUint16(0, true);
  const height = header.getUint16(2, true);
  setPanelSize(width, height);
  const image = pen.createImageData(width, height);
  const pixels = new Uint32Array(image.data.buffer);
  const packed = new Uint8Array(data, 8);
  const stride = Math.ceil(width / 4);
  for (let y = 0, to = 0; y < height; ++y)
    for (let x = 0; x < width; ++x)
      pixels[to++] = LEVELS[packed[y * stride + (x >> 2)] >> (6 - 2 * (x & 3)) & 3];
  pen.putImageData(image, 0, 0);
  return header.getUint32(4, true);
}

/* A row that changes or becomes the selected one is a new element: that is what screen readers announce. */
function showRows(rows) {
  const list = document.getElementById("rows");
  while (list.children.length > rows.length) list.lastElementChild.remove();
  rows.forEach((row, index) => {
    const old = list.children[index];
    if (old && old.textContent === row.text && (old.ariaCurrent === "true" || !row.selected)) {
      if (!row.selected) old.ariaCurrent = null;
      return;
    }
    const item = document.createElement("li");
    item.textContent = row.text;
    if (row.selected) item.ariaCurrent = "true";
    if (old) old.replaceWith(item);
    else list.append(item);
  });
}

function setState(state, sentence) {
  phone.dataset.state = state;
  document.getElementById("notice").textContent = sentence;
}

/* The largest panel pixel that is a whole number of device pixels and leaves room for the whole telephone. */
function fit() {
  const ratio = window.devicePixelRatio || 1;
  const isPortrait = window.innerWidth < 700 && window.innerWidth < 1.2 * window.innerHeight;
  phone.classList.toggle("compact", isPortrait);
  document.documentElement.style.setProperty("--u", "1px");
  const below = document.querySelector(".hint").offsetHeight;
  const room = Math.min((window.innerWidth - 16) / phone.offsetWidth,
                        (window.innerHeight - (below ? below + 34 : 16)) / phone.offsetHeight);
  const pixel = Math.max(1, Math.floor(2 * room * ratio)) / ratio;
  document.documentElement.style.setProperty("--u", `${pixel / 2}px`);
}

/* ---- The keys: each press is one message down and one message up, whatever has pressed it. ---- */

class Keys {
  constructor(link) {
    this.link = link;
    this.holders = new Map(); // what holds the key (a pointer, a key of the keyboard) -> its name
  }

  down(holder, name) {
    if (this.holders.has(holder)) return;
    this.holders.set(holder, name);
    this.show(name);
    this.link.send(`down ${name}`);
  }

  up(holder) {
    const name = this.holders.get(holder);
    if (name === undefined) return;
    this.holders.delete(holder);
    this.show(name);
    this.link.send(`up ${name}`);
  }

  upAll() {
    for (const holder of [...this.holders.keys()]) this.up(holder);
  }

  /* In a task of its own: a browser that has to draw after an event lets frames of the panel wait until it has. */
  show(name) {
    setTimeout(() => {
      const isHeld = [...this.holders.values()].includes(name);
      document.querySelector(`[data-key="${name}"]`).classList.toggle("pressed", isHeld);
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

/* Enter and space press the button that has the focus; without one, Enter is OK. */
function nameOfKeyEvent(event) {
  if (event.ctrlKey || event.altKey || event.metaKey) return undefined;
  const focused = document.activeElement?.dataset.key;
  if (focused && (event.key === "Enter" || event.key === " ")) return focused;
  return KEYS_OF_KEYBOARD.get(event.key);
}

function listenToKeyboard(keys) {
  window.addEventListener("keydown", (event) => {
    const name = nameOfKeyEvent(event);
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

setState("connecting", "Connecting…");
fit();
window.addEventListener("resize", fit);

const link = new Link({
  opened: () => setState("open", ""),
  broken: () => setState("broken", "The application has stopped. Reconnecting…"),
  ended: () => setState("ended", "The application has ended."),
  frame: drawFrame,
  rows: showRows,
});

const keys = new Keys(link);
document.querySelectorAll("[data-key]").forEach((button) => listenToButton(keys, button));
listenToKeyboard(keys);
