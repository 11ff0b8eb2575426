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
  static BREATH = 150; // a screen may come in several frames: it is said as a whole

  constructor(list, announce) {
    this.list = list;
    this.announce = announce;
    this.rows = [];
    this.said = []; // the rows when something was said last
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
    this.rows = received.map((row) => ({ lasting: row.text, ...row }));
    this.write();
    this.breath ??= setTimeout(() => this.sayNews(), Rows.BREATH);
  }

  sayNews() {
    const news = this.newsOf();
    this.said = this.rows;
    this.breath = undefined;
    if (news.length) this.announce(news.map((row) => row.lasting));
  }

  clear() {
    this.rows = [];
    this.write();
  }

  text() {
    return this.rows.map((row) => (row.selected ? "> " : "  ") + row.text).join("\n") + "\n";
  }

  /* Not a clock, a timer or a running text that goes on; on the same screen not what has only moved either. */
  newsOf() {
    const known = new Set(this.said.map((row) => row.lasting));
    const kept = this.rows.filter((row) => known.has(row.lasting)).length;
    // A screen that begins with its title alone, its rows to come, is another one, also where the title was a row before.
    const isSameScreen = 2 * kept > Math.max(this.rows.length, this.said.length);
    return this.rows.filter((row, index) => {
      const old = this.said[index];
      if (row.lasting === "" || this.isCounting(old, row)) return false;
      if (old?.lasting === row.lasting) return row.selected && !old.selected;
      return row.selected || !isSameScreen || !known.has(row.lasting);
    });
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

/* Says texts, each in its language. */
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
