/* ---- The rows: what the panel shows as text, and what of it is said when it changes. ---- */

/* Languages that are alone with their script. */
const LANGUAGE_OF_SCRIPT = new Map([
  ["Grek", "el"], ["Hebr", "he"], ["Hira", "ja"], ["Kana", "ja"], ["Hang", "ko"], ["Thai", "th"],
]);
const SCRIPTS = ["Latn", "Grek", "Cyrl", "Arab", "Hebr", "Hira", "Kana", "Hani", "Hang", "Thai"];
const PATTERNS = SCRIPTS.map((script) => [script, new RegExp(`\\p{Script=${script}}`, "gu")]);
const SCRIPTS_OF = { Jpan: ["Hira", "Kana", "Hani"], Kore: ["Hang", "Hani"], Hans: ["Hani"], Hant: ["Hani"] };

function scriptsOf(language) {
  try {
    const { script } = new Intl.Locale(language).maximize();
    return SCRIPTS_OF[script] ?? [script];
  } catch {
    return [];
  }
}

/* That in which most of the letters are; Japanese is known by its syllables. */
function scriptOf(text) {
  const counts = PATTERNS.map(([script, pattern]) => [script, text.match(pattern)?.length ?? 0]);
  const kana = counts.find(([script, count]) => (script === "Hira" || script === "Kana") && count > 0);
  const [script, count] = kana ?? counts.reduce((most, each) => (each[1] > most[1] ? each : most));
  return count > 0 ? script : undefined;
}

/* The telephone's language, unless that is written in another script. */
function languageOf(text, language) {
  const script = scriptOf(text);
  if (script === undefined || scriptsOf(language).includes(script)) return language;
  return LANGUAGE_OF_SCRIPT.get(script) ?? `und-${script}`;
}

/* "09:41" and "09:42" are of one shape. */
const shapeOf = (text) => text.replace(/\p{Nd}+/gu, "0");

class Rows {
  static COUNTING = 1500; // how long after a key digits may still change because of it

  constructor(list, announce) {
    this.list = list;
    this.announce = announce;
    this.rows = [];
    this.language = "";
    this.lastKey = -Infinity;
  }

  keyPressed() {
    this.lastKey = performance.now();
  }

  setLanguage(language) {
    this.language = language;
  }

  show(received) {
    const rows = received.map((row) => ({ lasting: row.text, ...row }));
    const news = rows.filter((row, index) => this.isNews(row, index));
    this.rows = rows;
    this.write();
    if (news.length) this.announce(news.map((row) => row.lasting));
  }

  clear() {
    this.rows = [];
    this.write();
  }

  text() {
    return this.rows.map((row) => (row.selected ? "> " : "  ") + row.text).join("\n") + "\n";
  }

  /* Not a clock, a timer or a running text that goes on, and not what has only moved. */
  isNews(row, index) {
    if (row.lasting === "") return false;
    const isSame = (old) => old.lasting === row.lasting && (old.selected || !row.selected);
    if (row.selected ? isSame(this.rows[index] ?? {}) : this.rows.some(isSame)) return false;
    return !this.isCounting(this.rows[index], row);
  }

  isCounting(old, row) {
    return old !== undefined && old.selected === row.selected && shapeOf(old.lasting) === shapeOf(row.lasting) &&
      performance.now() - this.lastKey > Rows.COUNTING;
  }

  write() {
    while (this.list.children.length > this.rows.length) this.list.lastElementChild.remove();
    while (this.list.children.length < this.rows.length) this.list.append(document.createElement("li"));
    this.rows.forEach((row, index) => this.writeRow(this.list.children[index], row));
  }

  writeRow(item, row) {
    item.textContent = row.text;
    item.lang = languageOf(row.text, this.language);
    item.dir = "auto";
    item.ariaCurrent = row.selected ? "true" : null;
  }
}

/* Says texts, each in its language. What comes within one breath is said together. */
class Announcer {
  constructor(place, languageOf) {
    this.place = place;
    this.languageOf = languageOf;
  }

  say(texts) {
    this.place.replaceChildren(...texts.map((text) => {
      const part = document.createElement("span");
      part.textContent = `${text}. `;
      part.lang = this.languageOf(text);
      part.dir = "auto";
      return part;
    }));
  }
}
