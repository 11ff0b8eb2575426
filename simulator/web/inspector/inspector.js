/* ---- The inspector: asks the program again and again, and shows what it says. ---- */

const PERIOD = 1000;
const LONGEST_PAUSE = 4000;

const pause = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

/* The token stays with the tab, and leaves the address, which others may see and browsers keep. */
const token = {
  take() {
    const given = new URLSearchParams(location.search).get("token");
    if (!given) return;
    this.set(given);
    history.replaceState(null, "", location.pathname);
  },
  get() {
    return sessionStorage.getItem("token") ?? "";
  },
  set(text) {
    sessionStorage.setItem("token", text);
  },
};

const SENTENCES = {
  connecting: "Connecting…",
  asking: "The inspector needs the test interface's token.",
  broken: "The program has gone. Looking for it…",
  ended: "The program has ended.",
  absent: "The program runs without a test interface now.",
  full: "The test interface has no room for another client.",
};

function setState(state, sentence = SENTENCES[state]) {
  const hasChanged = document.body.dataset.state !== state;
  document.body.dataset.state = state;
  byId("ask").hidden = state !== "asking";
  if (byId("sentence").textContent !== sentence) byId("sentence").textContent = sentence;
  if (hasChanged) byId("said").textContent = state === "open" ? "The GUI thread answers." : sentence;
}

const picture = new Picture(byId("picture"), (pixel) => tree.markAt(pixel));
const tree = new WidgetTree(byId("tree"), (widget) => picture.mark(widget));
const counters = new Counters(byId("counters"));
const records = new Records();
const timeline = new Timeline(byId("timeline"), records, (view) => showRecords(records, view),
                              (record) => (byId("request").textContent = record ? recordSentence(record) : ""));

const isOn = (id) => byId(id).getAttribute("aria-pressed") === "true";
const rests = () => isOn("hold") || document.hidden;

function showStatus(status) {
  const { gui, waiting, threads, complete, displayables, widgets } = status;
  setState(gui.state === "standing" ? "standing" : "open", guiSentence(gui));
  showWaiting(waiting);
  counters.show(status);
  showThreads(threads, gui.thread);
  byId("no-widgets").hidden = complete;
  byId("no-widgets").textContent = tree.isEmpty ? "The GUI thread does not answer: they are not known." :
    "The GUI thread does not answer: these are as they were last.";
  if (!complete) return;
  showDisplayables(displayables);
  tree.show(widgets);
}

function showTrace(taken) {
  if (!isOn("record") && taken.records.length === 0) return;
  records.add(taken);
  timeline.update();
  showRecords(records, timeline.view);
}

function clearTrace() {
  records.clear();
  timeline.choose(null);
  timeline.setFollows(true);
  timeline.update();
}

/* What only the GUI thread answers has a connection of its own: on that of the rest it would keep the rest waiting. */
class Session {
  constructor() {
    this.hasEnded = false;
    this.isGreeted = false;
    this.isPainting = false;
  }

  async open() {
    const noted = (method) => {
      if (method === "ended") this.hasEnded = true;
      if (method === "changed") this.paint();
    };
    this.status = await Client.open(token.get(), { noted });
    this.screen = await Client.open(token.get(), { noted });
  }

  async greet() {
    if (this.isGreeted) return;
    this.isGreeted = true;
    try {
      const { program, panel, page } = await this.screen.call("hello");
      byId("program").textContent = `${program}, panel ${panel.variant}, port ${location.port || 80}`;
      document.title = `Inspector: ${program}`;
      byId("page").hidden = page === null;
      if (page !== null) byId("page").href = page;
      picture.setPanel(panel);
      await this.screen.call("subscribe");
    } catch {
      this.isGreeted = false;
    }
  }

  /* Until the program has gone. */
  async watch() {
    while (this.status.isOpen) {
      if (!rests()) await this.look();
      await pause(PERIOD);
    }
  }

  async look() {
    const status = await this.status.call("inspect");
    showStatus(status);
    if (isOn("record")) showTrace(await this.status.call("trace"));
    if (!status.complete) return;
    this.greet();
    this.paint();
  }

  async paint() {
    if (this.isPainting || rests()) return;
    this.isPainting = true;
    try {
      picture.show((await this.screen.call("screenshot")).png);
    } catch { /* the next one may come */ }
    this.isPainting = false;
  }

  close() {
    this.status?.close();
    this.screen?.close();
  }
}

/* What the server says to the token; 0 where there is none. */
async function verdict() {
  try {
    return (await fetch(`/inspect?token=${encodeURIComponent(token.get())}`, { cache: "no-store" })).status;
  } catch {
    return 0;
  }
}

let session = null;
let goodbye = "broken";

async function visit() {
  const before = session;
  session = new Session();
  try {
    await session.open();
    goodbye = "broken";
    if (before !== null) clearTrace();
    byId("record").setAttribute("aria-pressed", false);
    await session.watch();
  } catch { /* it has gone meanwhile */ }
  if (session.hasEnded) goodbye = "ended";
  session.close();
}

async function stay() {
  for (let wait = PERIOD / 4; ; wait = Math.min(2 * wait, LONGEST_PAUSE)) {
    const status = token.get() === "" ? 403 : await verdict();
    if (status === 403) {
      if (token.get() !== "") byId("refused").textContent = "That is not the token of this test interface.";
      return setState("asking");
    }
    if (status === 200) await visit();
    if (status === 200 && session.status?.number > 0) wait = PERIOD / 4;
    setState(status === 404 ? "absent" : status === 200 && !session.screen ? "full" : goodbye);
    await pause(wait);
  }
}

byId("ask").addEventListener("submit", (event) => {
  event.preventDefault();
  byId("refused").textContent = "";
  token.set(byId("token").value.trim());
  byId("token").value = "";
  setState("connecting");
  stay();
});

const toggle = (id) => byId(id).setAttribute("aria-pressed", !isOn(id));

byId("hold").addEventListener("click", () => toggle("hold"));
byId("record").addEventListener("click", async () => {
  toggle("record");
  try {
    showTrace(await session.status.call("trace", { enable: isOn("record") }));
  } catch {
    byId("record").setAttribute("aria-pressed", false);
  }
});
byId("clear").addEventListener("click", clearTrace);
byId("closer").addEventListener("click", () => timeline.zoom(1 / Timeline.ZOOM));
byId("farther").addEventListener("click", () => timeline.zoom(Timeline.ZOOM));
byId("all").addEventListener("click", () => timeline.showAll());
byId("follow").addEventListener("click", () => timeline.setFollows(!timeline.follows));

token.take();
stay();
