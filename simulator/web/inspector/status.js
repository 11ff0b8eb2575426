/* ---- What the program is at, who waits, and its figures. ---- */

function duration(nanoseconds) {
  const units = [[1e9, "s"], [1e6, "ms"], [1e3, "µs"]];
  const [size, unit] = units.find(([size]) => nanoseconds >= size) ?? [1, "ns"];
  const value = nanoseconds / size;
  return `${value.toFixed(value < 10 && size > 1 ? 1 : 0)} ${unit}`;
}

const nameOf = ({ facade, code }) => `${facade} ${code}`;

const threadOf = ({ thread, threadName }) => `${threadName} (${thread})`;

/* A line for who sees it now. */
function guiSentence({ state, nanoseconds, doing }) {
  const what = doing ? nameOf(doing) : "a key, a timer or a frame";
  switch (state) {
    case "resting": return "The GUI thread waits for work.";
    case "busy": return `The GUI thread is at ${what}.`;
    case "standing": return `The GUI thread stands still: it has been at ${what} for ${duration(nanoseconds)}.`;
    case "noLoop": return "No loop runs: the program has not come to its screens yet, or is leaving them.";
    default: return "The GUI thread has ended.";
  }
}

const cycleSentence = ({ cycle, certain }) =>
  (certain ? "A cycle: " : "A cycle, if the GUI thread waits for this one: ") + cycle.join(" waits for ");

/* Only what differs is changed: else who reads there loses the place. */
function replaceWith(place, made) {
  const html = made.map((each) => each.outerHTML).join("");
  if (place.dataset.html === html) return;
  place.dataset.html = html;
  place.replaceChildren(...made);
}

function showWaiting(waiting) {
  const cycles = [...new Set(waiting.filter(({ cycle }) => cycle).map(cycleSentence))];
  replaceWith(byId("cycles"), cycles.map((sentence) => element("p", { class: "cycle" }, sentence)));
  byId("nobody").hidden = waiting.length > 0;
  byId("waiting").hidden = waiting.length === 0;
  byId("waiting").tBodies[0].replaceChildren(...waiting.map((caller) => element("tr", {},
    element("th", { scope: "row" }, threadOf(caller)), element("td", {}, nameOf(caller)),
    element("td", {}, duration(caller.nanoseconds)))));
}

class Counters {
  constructor(place) {
    this.place = place;
  }

  show({ now, counters }) {
    const { queued, mostQueued, carriedOut, purged, lost, messages, freeMessages } = counters;
    const figures = {
      "Messages waiting": queued, "Most ever waiting": mostQueued, "Requests each second": this.rate(now, carriedOut),
      "Requests carried out": carriedOut, Purged: purged, Lost: lost,
      "Messages of the pool in use": `${messages - freeMessages} of ${messages}`,
    };
    replaceWith(this.place, Object.entries(figures).flatMap(([name, figure]) =>
      [element("dt", {}, name), element("dd", {}, figure)]));
  }

  rate(now, carriedOut) {
    const before = this.before;
    this.before = { now, carriedOut };
    if (!before || now <= before.now || carriedOut < before.carriedOut) return "–";
    return Math.round((carriedOut - before.carriedOut) * 1e9 / (now - before.now));
  }
}

/* Threads of one name, of which a server has many, in one line. */
function showThreads(threads, guiThread) {
  const numbers = new Map();
  for (const { thread, name } of threads) {
    const key = thread === guiThread ? `${name}, the GUI thread` : name;
    numbers.set(key, [...numbers.get(key) ?? [], thread]);
  }
  const listed = (all) => (all.length <= 4 ? all.join(", ") : `${all.length} from ${all[0]} to ${all.at(-1)}`);
  replaceWith(byId("threads"), [...numbers].map(([name, all]) =>
    element("li", {}, element("b", {}, name), ` ${listed(all)}`)));
}

const showDisplayables = (names) =>
  replaceWith(byId("displayables"), names.map((name) => element("li", {}, name)));
