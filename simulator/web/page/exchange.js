/* ---- The program's exchange: what it offers, each with a button, and a field for all else that it understands. ---- */

class Exchange {
  static LONGEST_LINE = 1000; // bytes: what is longer would cost the connection

  /* `say` has the exchange hear a line. */
  constructor(place, say) {
    this.place = place;
    this.say = say;
    this.opener = document.querySelector("[data-tool=showExchange]");
    this.field = place.querySelector("input");
    place.querySelector("form").addEventListener("submit", (event) => this.submit(event));
    place.querySelector(".close").addEventListener("click", () => this.close());
    place.addEventListener("keydown", (event) => {
      if (event.key === "Escape") this.close();
    });
  }

  /* Null where the program has no exchange. */
  offer(offers) {
    this.opener.hidden = offers === null;
    if (offers === null) this.setOpen(false);
    this.place.querySelector(".offers").replaceChildren(...(offers ?? []).map((one) => this.button(one)));
  }

  button({ label, line }) {
    const button = document.createElement("button");
    button.type = "button";
    button.textContent = label;
    button.title = line;
    button.addEventListener("click", () => this.say(line));
    return button;
  }

  submit(event) {
    event.preventDefault();
    const line = this.field.value;
    if (new TextEncoder().encode(line).length <= Exchange.LONGEST_LINE) this.say(line);
    else this.answer("That is too long for the exchange.");
  }

  /* Empty where the line has been heard: then there is room for the next one. */
  answer(sentence) {
    byId("exchange-answer").textContent = sentence;
    if (!sentence) this.field.value = "";
  }

  toggle() {
    this.setOpen(this.place.hidden);
    if (!this.place.hidden) this.field.focus();
  }

  close() {
    this.setOpen(false);
    this.opener.focus();
  }

  setOpen(isOpen) {
    this.place.hidden = !isOpen;
    this.opener.setAttribute("aria-expanded", isOpen);
    this.answer("");
  }
}
