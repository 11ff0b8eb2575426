/* ---- What the page does with the screen besides showing it: copies and saves it, and shows all keys. ---- */

const PICTURE_SCALE = 3;

function saveAs(name, blob) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(blob);
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10_000);
}

/* Where the page comes from another machine, the browser keeps its clipboard from it: there the old way is left. */
async function copyText(text) {
  if (navigator.clipboard) return navigator.clipboard.writeText(text);
  const field = document.createElement("textarea");
  field.value = text;
  document.body.append(field);
  field.select();
  const isCopied = document.execCommand("copy");
  field.remove();
  if (!isCopied) throw new Error("refused");
}

class Tools {
  static TOLD_FOR = 4000;

  /* `fileName` makes a file's name of its extension. */
  constructor(panel, rows, exchange, fileName) {
    this.panel = panel;
    this.rows = rows;
    this.exchange = exchange;
    this.fileName = fileName;
    for (const button of document.querySelectorAll("[data-tool]"))
      button.addEventListener("click", () => this.use(button.dataset.tool));
  }

  async use(tool) {
    try {
      this.tell(await this[tool]());
    } catch {
      this.tell("The browser does not allow that here: save it instead.");
    }
  }

  tell(sentence = "") {
    byId("told").textContent = sentence;
    clearTimeout(this.silence);
    this.silence = setTimeout(() => byId("told").replaceChildren(), Tools.TOLD_FOR);
  }

  async copyPicture() {
    await navigator.clipboard.write([new ClipboardItem({ "image/png": this.panel.png(PICTURE_SCALE) })]);
    return "Picture copied.";
  }

  async savePicture() {
    saveAs(this.fileName("png"), await this.panel.png(PICTURE_SCALE));
    return "Picture saved.";
  }

  async copyText() {
    await copyText(this.rows.text());
    return "Text copied.";
  }

  async saveText() {
    saveAs(this.fileName("txt"), new Blob([this.rows.text()], { type: "text/plain;charset=utf-8" }));
    return "Text saved.";
  }

  showExchange() {
    this.exchange.toggle();
  }

  showKeys() {
    byId("keys").showModal();
  }
}

/* A box of the sheet with all keys that keeps what the user has chosen, and tells it now and whenever it changes. */
function followChoice(box, initially, changed) {
  const stored = settings.get(box.id);
  box.checked = stored === null ? initially : stored === "yes";
  box.addEventListener("change", () => {
    settings.set(box.id, box.checked ? "yes" : "no");
    changed(box.checked);
  });
  changed(box.checked);
}

function listenForHelp(keys) {
  window.addEventListener("keydown", (event) => {
    if (event.key !== "?" || !keys.usesKeyboard || byId("keys").open || event.target.closest?.("#exchange")) return;
    event.preventDefault();
    keys.upAll();
    byId("keys").showModal();
  });
}
