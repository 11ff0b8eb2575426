/* ---- The requests that have been recorded, and their table. ---- */

class Records {
  static MOST = 20_000;
  static MOST_ROWS = 200;

  constructor() {
    this.clear();
  }

  clear() {
    this.all = [];
    this.byKey = new Map();
    this.lost = 0;
    this.version = 0;
  }

  /* One that has not ended is told again. */
  add({ records, lost }) {
    for (const record of records) {
      const key = `${record.thread} ${record.queued} ${record.facade} ${record.number}`;
      const known = this.byKey.get(key);
      if (known) Object.assign(known, record);
      else this.append(key, record);
    }
    this.lost += lost;
    this.version += records.length;
    this.all.sort((one, other) => one.queued - other.queued);
    this.trim();
  }

  append(key, record) {
    this.byKey.set(key, record);
    this.all.push(record);
  }

  trim() {
    if (this.all.length <= Records.MOST) return;
    this.all.splice(0, this.all.length - Records.MOST);
    const kept = new Set(this.all);
    for (const [key, record] of this.byKey) if (!kept.has(record)) this.byKey.delete(key);
  }

  get from() {
    return this.all[0]?.queued ?? 0;
  }

  get to() {
    return this.all.reduce((latest, record) => Math.max(latest, endOf(record)), this.from);
  }
}

const endOf = ({ queued, run, done }) => done ?? run ?? queued;

function outcomeOf({ run, done, purgedBy }) {
  if (purgedBy) return `purged by ${purgedBy}`;
  if (done !== null) return "done";
  return run !== null ? "under way" : "waits for its turn";
}

const waitedOf = ({ queued, run }) => (run === null ? "" : duration(run - queued));
const ranOf = ({ run, done }) => (run === null || done === null ? "" : duration(done - run));

const recordSentence = (record) =>
  `${nameOf(record)} by ${threadOf(record)}: ` +
  [waitedOf(record) && `waited ${waitedOf(record)} for its turn`, ranOf(record) && `took ${ranOf(record)}`,
   outcomeOf(record)].filter(Boolean).join(", ") + (record.waits ? "; its caller waits for it." : ".");

/* Those that the timeline shows, the newest first. */
function showRecords(records, { from, to }) {
  const shown = records.all.filter((record) => endOf(record) >= from && record.queued <= to);
  const rows = shown.slice(-Records.MOST_ROWS).reverse();
  const lost = records.lost > 0 ? ` ${records.lost} more were overwritten before they were taken.` : "";
  byId("records-title").textContent = records.all.length === 0 ? "No requests recorded." :
    `${rows.length < shown.length ? `The ${rows.length} newest of ` : ""}${shown.length} requests in the timeline.${lost}`;
  byId("records").tBodies[0].replaceChildren(...rows.map((record) => element("tr", {},
    ...[`${((record.queued - records.from) / 1e6).toFixed(3)} ms`, threadOf(record), nameOf(record), waitedOf(record),
        ranOf(record), outcomeOf(record)].map((text) => element("td", {}, text)))));
}
