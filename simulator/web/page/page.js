/* ---- The page: what the application says, and what the user does. ---- */

const SENTENCES = {
  connecting: "Connecting…",
  open: "",
  standing: "The application does not answer.",
  broken: "The application has stopped. Reconnecting…",
  ended: "The application has ended.",
};

function setState(state, sentence = SENTENCES[state]) {
  phone.dataset.state = state;
  if (byId("notice").textContent !== sentence) byId("notice").textContent = sentence;
}

function setName({ program, panel }) {
  const name = `${program}, panel ${panel}, port ${location.port || 80}`;
  phone.dataset.panel = panel;
  document.title = name;
  byId("name").textContent = name;
}

/* "deskphone-plain-20260131-094105.png" */
function fileName(extension) {
  const time = new Date(Date.now() - 60_000 * new Date().getTimezoneOffset()).toISOString();
  const stamp = time.slice(0, 19).replace(/[-:]/g, "").replace("T", "-");
  return `${application.program}-${application.panel}-${stamp}.${extension}`;
}

const LAMPS = { dark: "dark", lit: "lit", blinks: "blinking" };

function showSigns({ lamp, lifted }) {
  byId("ring").dataset.lamp = lamp;
  byId("ring").setAttribute("aria-label", `Call lamp, ${LAMPS[lamp]}`);
  phone.toggleAttribute("data-lifted", lifted);
}

let application = { program: "telephone", panel: "plain" };
let goodbye = "broken"; // what the end of the connection means

const size = new Size();
const panel = new Panel(() => size.fit());
const announcer = new Announcer(byId("said"), (text) => languageOf(text, rows.language));
const rows = new Rows(byId("rows"), (texts) => announcer.say(texts));

const link = new Link({
  opened() {
    goodbye = "broken";
    sendMotion();
  },
  closed() {
    if (phone.dataset.state === "connecting" || phone.dataset.state === "full") return;
    rows.clear();
    setState(goodbye);
  },
  frame(data) {
    if (phone.dataset.state !== "standing") setState("open");
    return panel.draw(data);
  },
  application(told) {
    application = told;
    setName(told);
    programmable.show([]); // until it tells of some
    exchange.offer(null);
    showSigns({ lamp: "dark", lifted: false });
    size.fit();
  },
  language: (language) => rows.setLanguage(language),
  rows: (received) => rows.show(received),
  lamps: (lamps) => programmable.show(lamps),
  exchange: (offers) => exchange.offer(offers),
  signs: showSigns,
  answer: (sentence) => exchange.answer(sentence),
  standing: (isStanding) => setState(isStanding ? "standing" : "open"),
  ended() {
    goodbye = "ended";
  },
  full: (most) => setState("full", `${most} tabs show this telephone already: close one of them.`),
});

const keys = new Keys((text) => {
  rows.keyPressed();
  link.send(text);
});
const programmable = new Programmable(document.querySelector(".programmable"),
                                      (button) => listenToButton(keys, button), () => size.fit());
const exchange = new Exchange(byId("exchange"), (line) => link.send(`exchange ${line}`));
listenToHandset(keys, document.querySelector(".handset"));
document.querySelectorAll("[data-key]").forEach((button) => listenToButton(keys, button));
listenToKeyboard(keys);
listenForHelp(keys);

new Tools(panel, rows, exchange, fileName);
followChoice(byId("shortcuts"), true, (isOn) => (keys.usesKeyboard = isOn));

const sendMotion = () => link.send(`motion ${byId("less-motion").checked ? "less" : "full"}`);
followChoice(byId("less-motion"), matchMedia("(prefers-reduced-motion: reduce)").matches, sendMotion);
