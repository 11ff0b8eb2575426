/* ---- The programmable keys beside the panel: as many as the application has labels for, each with its lamp. ---- */

class Programmable {
  constructor(place, listen, resized) {
    this.place = place;
    this.listen = listen;
    this.resized = resized;
  }

  /* Whether the lamp of each key is lit. */
  show(lamps) {
    if (this.place.children.length !== lamps.length) this.make(lamps.length);
    lamps.forEach((isLit, i) => this.light(this.place.children[i], i + 1, isLit));
  }

  make(count) {
    this.place.replaceChildren(...Array.from({ length: count }, (_, i) => this.key(i + 1)));
    root.style.setProperty("--programmable", count);
    this.resized();
  }

  key(number) {
    const button = document.createElement("button");
    button.type = "button";
    button.dataset.key = `fpk${number}`;
    button.append(document.createElement("i"));
    this.listen(button);
    return button;
  }

  light(button, number, isLit) {
    button.classList.toggle("lit", isLit);
    button.setAttribute("aria-label", `Programmable key ${number}${isLit ? ", lit" : ""}`);
  }
}
