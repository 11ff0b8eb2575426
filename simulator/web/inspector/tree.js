/* ---- The tree of widgets. What is closed, marked or has the focus stays so while the widgets change. ---- */

function element(name, attributes = {}, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
  made.append(...children);
  return made;
}

const isIn = ({ x, y }, [left, top, right, bottom]) => x >= left && x <= right && y >= top && y <= bottom;

class WidgetTree {
  /* `marked` hears which widget is pointed at, by the mouse or the focus; null where none is. */
  constructor(place, marked) {
    this.place = place;
    this.marked = marked;
    this.closed = new Set();
    this.items = new Map(); // of a path the widget and its item
    place.addEventListener("mouseover", (event) => this.mark(this.pathOf(event)));
    place.addEventListener("mouseleave", () => this.mark(this.focused()));
    place.addEventListener("focusin", (event) => this.enter(this.pathOf(event)));
    place.addEventListener("focusout", () => this.mark(null));
    place.addEventListener("click", (event) => this.clicked(event));
    place.addEventListener("keydown", (event) => this.key(event));
  }

  get isEmpty() {
    return this.items.size === 0;
  }

  pathOf(event) {
    return event.target.closest("[role=treeitem]")?.dataset.path;
  }

  focused() {
    return document.activeElement?.closest?.("#tree [role=treeitem]")?.dataset.path ?? null;
  }

  show(root) {
    const text = JSON.stringify(root);
    if (text === this.text) return;
    this.text = text;
    const focused = this.focused();
    this.items.clear();
    this.place.replaceChildren(this.itemOf(root, "0", 1));
    this.current = this.items.has(this.current) ? this.current : "0";
    this.item(this.current).tabIndex = 0;
    if (focused !== null) this.item(this.current).focus();
    this.mark(this.items.has(this.path) ? this.path : null);
  }

  itemOf(widget, path, level) {
    const { class: name, owner, focus, rectangle, children } = widget;
    const line = element("div", { class: "line" }, element("b", {}, name));
    if (owner) line.append(element("span", {}, owner));
    if (focus) line.append(element("span", { class: "has-focus" }, "focus"));
    line.append(element("span", { class: "area" }, sizeOf(rectangle)));
    const item = element("li", { role: "treeitem", "aria-level": level, "aria-label": describe(widget), tabindex: -1,
                                 "data-path": path }, line);
    this.items.set(path, { widget, item });
    if (children.length === 0) return item;
    item.setAttribute("aria-expanded", !this.closed.has(path));
    item.append(element("ul", { role: "group" },
                        ...children.map((child, index) => this.itemOf(child, `${path}/${index}`, level + 1))));
    return item;
  }

  item(path) {
    return this.items.get(path)?.item;
  }

  mark(path) {
    this.place.querySelector(".marked")?.classList.remove("marked");
    this.path = path ?? null;
    this.item(path)?.firstChild.classList.add("marked");
    this.marked(this.items.get(path)?.widget ?? null);
  }

  /* The topmost one at a pixel: of children the last is on top. */
  markAt(pixel) {
    this.mark(pixel ? this.pathAt("0", pixel) : this.focused());
  }

  pathAt(path, pixel) {
    const widget = this.items.get(path)?.widget;
    if (!widget || !isIn(pixel, widget.rectangle)) return null;
    for (let index = widget.children.length - 1; index >= 0; --index) {
      const found = this.pathAt(`${path}/${index}`, pixel);
      if (found) return found;
    }
    return path;
  }

  enter(path) {
    const before = this.item(this.current);
    if (before) before.tabIndex = -1;
    this.current = path;
    this.item(path).tabIndex = 0;
    this.mark(path);
  }

  clicked(event) {
    const path = this.pathOf(event);
    if (!path) return;
    this.item(path).focus();
    this.setOpen(path, this.closed.has(path));
  }

  setOpen(path, isOpen) {
    if (!this.item(path).hasAttribute("aria-expanded")) return;
    this.closed[isOpen ? "delete" : "add"](path);
    this.item(path).setAttribute("aria-expanded", isOpen);
  }

  key(event) {
    const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
    const shown = [...this.place.querySelectorAll("[role=treeitem]")].filter((item) => item.offsetParent !== null);
    const at = shown.indexOf(this.item(this.current));
    if (step) shown[at + step]?.focus();
    else if (event.key === "Home") shown[0]?.focus();
    else if (event.key === "End") shown.at(-1)?.focus();
    else if (event.key === "ArrowRight") this.inwards();
    else if (event.key === "ArrowLeft") this.outwards();
    else return;
    event.preventDefault();
  }

  inwards() {
    if (this.closed.has(this.current)) this.setOpen(this.current, true);
    else this.item(`${this.current}/0`)?.focus();
  }

  outwards() {
    const isOpen = this.item(this.current).getAttribute("aria-expanded") === "true";
    if (isOpen) this.setOpen(this.current, false);
    else this.item(this.current.slice(0, Math.max(1, this.current.lastIndexOf("/"))))?.focus();
  }
}
