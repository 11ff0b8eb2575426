/* ---- The size: how the telephone is laid out, how large a pixel of its panel (--p) and the rest of it (--u) are. ----

   At full size a pixel of the panel is two CSS pixels, however large the window is: so the telephone grows with the
   browser's zoom and its text size. It gets somewhat smaller where all of it then fits the window; where it does not,
   the page scrolls. It is never wider than the window. */

const PIXEL = 2;
const STEP = 0.02;
const LAYOUTS = {
  whole: { largest: 1, smallest: 0.8 },
  compact: { largest: 1, smallest: 0.8 },
  beside: { largest: 1, smallest: 0.72, fillsWidth: true },
  tall: { largest: 1.5, smallest: 0.64, fillsWidth: true }, // its keys are 24 pixels and more
};

const phone = document.querySelector(".phone");
const canvas = byId("panel");
const root = document.documentElement;
const desk = document.querySelector(".desk");
const screenPlace = document.querySelector(".screen");
const bezel = document.querySelector(".bezel");
const programmablePlace = document.querySelector(".programmable");
const isTouched = matchMedia("(pointer: coarse)");

/* A whole number of device pixels: with that, all pixels of the panel are of one size. */
const toDevice = (size, round) => Math.max(1, round(size * devicePixelRatio)) / devicePixelRatio;

/* The panel in its frame, and the programmable keys beside it. */
const screenWidth = () => programmablePlace.getBoundingClientRect().right - bezel.getBoundingClientRect().left;

function pixelOf(layout, full) {
  const wanted = toDevice(PIXEL * full, Math.round);
  if (!LAYOUTS[layout].fillsWidth) return wanted;
  const room = screenPlace.clientWidth - (screenWidth() - canvas.offsetWidth);
  return Math.min(wanted, toDevice(room / canvas.width, Math.floor));
}

function lay(layout, unit, full) {
  phone.dataset.layout = layout;
  root.style.setProperty("--u", `${unit}px`);
  const pixel = pixelOf(layout, full);
  root.style.setProperty("--p", `${pixel}px`);
  return pixel;
}

const fitsWidth = () => phone.getBoundingClientRect().width <= desk.clientWidth && phone.scrollWidth <= phone.clientWidth;

/* What stands below a telephone that fills the width may be scrolled to. */
function fitsHeight() {
  const isAlone = LAYOUTS[phone.dataset.layout].fillsWidth;
  return (isAlone ? phone.offsetHeight + 8 : desk.offsetHeight) <= root.clientHeight;
}

function putAside(x, y) {
  root.style.setProperty("--aside-x", `${x}px`);
  root.style.setProperty("--aside-y", `${y}px`);
}

/* To whole pixels, of CSS and of the device: between two of them its edge would be cut. */
function alignPanel() {
  const step = Math.max(1, 1 / devicePixelRatio);
  const { left, top } = canvas.getBoundingClientRect();
  const missing = (position) => Math.round(position / step) * step - position;
  putAside(missing(left + window.scrollX), missing(top + window.scrollY));
}

class Size {
  constructor() {
    this.ratio = devicePixelRatio;
    this.unit = 0; // before the user has zoomed in
    this.fit();
    window.addEventListener("resize", () => this.fit());
    isTouched.addEventListener("change", () => this.fit());
  }

  fit() {
    putAside(0, 0);
    const full = parseFloat(getComputedStyle(root).fontSize) / 16;
    root.style.overflowY = "hidden"; // no scroll bar takes room from what fits
    if (!this.layToFit(full)) {
      root.style.overflowY = "scroll";
      this.layToScroll(full);
    }
    root.style.overflowY = "";
    alignPanel();
  }

  layToFit(full) {
    const isUpright = desk.clientWidth < root.clientHeight;
    const names = ["whole", "compact", ...(isTouched.matches ? ["beside"] : []), ...(isUpright ? ["tall"] : [])];
    return names.some((name) => this.layAsLargeAsFits(name, full));
  }

  /* The panel goes before the keys. */
  layAsLargeAsFits(name, full) {
    const { largest, smallest } = LAYOUTS[name];
    let best = { unit: 0, pixel: 0 };
    for (let unit = largest * full; unit > Math.max(smallest * full, this.leastUnit()) - STEP / 2; unit -= STEP) {
      const pixel = lay(name, unit, full);
      if (pixel >= full && pixel > best.pixel && fitsWidth() && fitsHeight()) best = { unit, pixel };
      if (best.unit && name !== "beside") break;
    }
    if (!best.unit) return false;
    lay(name, best.unit, full);
    if (!this.isZoomedIn()) this.unit = best.unit;
    return true;
  }

  layToScroll(full) {
    for (const name of ["whole", "compact", "tall"]) {
      lay(name, full, full);
      if (fitsWidth()) return;
    }
    for (let unit = full; unit > 0.5 * full && !fitsWidth(); unit -= STEP) lay("tall", unit, full);
  }

  /* Who zooms in wants it larger: then the height of the window takes nothing more from it. */
  leastUnit() {
    return this.isZoomedIn() ? this.unit : 0;
  }

  isZoomedIn() {
    return devicePixelRatio > this.ratio;
  }
}
