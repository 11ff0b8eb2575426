/* ---- The panel's picture, on which a widget is marked. ---- */

const sizeOf = ([left, top, right, bottom]) => `${right - left + 1} × ${bottom - top + 1} at ${left}, ${top}`;

const describe = ({ class: name, owner, focus, rectangle }) =>
  [name, owner && `of ${owner}`, focus && "has the focus", sizeOf(rectangle)].filter(Boolean).join(", ");

class Picture {
  /* `pointed` hears which pixel of the panel the mouse is at; null where it is elsewhere. */
  constructor(place, pointed) {
    this.place = place;
    this.image = place.querySelector("img");
    this.frame = place.querySelector("i");
    this.panel = { width: 240, height: 128 };
    place.addEventListener("mousemove", (event) => pointed(this.pixelAt(event)));
    place.addEventListener("mouseleave", () => pointed(null));
  }

  setPanel(panel) {
    this.panel = panel;
    this.place.style.aspectRatio = `${panel.width} / ${panel.height}`;
  }

  show(png) {
    this.image.src = `data:image/png;base64,${png}`;
    this.image.hidden = false;
  }

  pixelAt({ clientX, clientY }) {
    const { left, top, width, height } = this.image.getBoundingClientRect();
    return { x: Math.floor((clientX - left) / width * this.panel.width),
             y: Math.floor((clientY - top) / height * this.panel.height) };
  }

  mark(widget) {
    this.frame.hidden = !widget;
    byId("widget").textContent = widget ? describe(widget) : "Point at a widget, here or in the tree.";
    if (!widget) return;
    const { width, height } = this.panel;
    const [left, top, right, bottom] = widget.rectangle;
    const share = (length, whole) => `${100 * length / whole}%`;
    Object.assign(this.frame.style, { left: share(left, width), top: share(top, height),
                                      width: share(right - left + 1, width), height: share(bottom - top + 1, height) });
  }
}
