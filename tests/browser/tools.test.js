// What the page offers beside the telephone: its name, the screen as picture and text, all keys.

import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { pause } from "./support/figures.js";
import { LIMIT, Phone, SUITE_LIMIT, until } from "./support/phone.js";
import { levelsOf } from "./support/pictures.js";

const SCALE = 3;

describe("the tools", SUITE_LIMIT, () => {
  let browser, phone;

  before(async () => {
    browser = await openBrowser();
    phone = await Phone.start({ variant: "narrow", clock: "virtual" }); // nothing moves
  });

  after(async () => {
    await browser.close();
    await phone.stop();
  });

  async function open(t, options) {
    const tab = await Tab.open(browser, phone.url, options);
    t.after(() => tab.close());
    await tab.openMenu();
    return tab;
  }

  const use = (tab, name) => tab.page.getByRole("button", { name }).click();
  const told = (tab, sentence) =>
    until(async () => (await tab.page.textContent("#told")) === sentence, `the page tells "${sentence}"`);

  /** As levels of the panel; fails unless each of its pixels is a square of one colour. */
  async function panelIn(png) {
    const { width, height, levels } = levelsOf(png);
    let panel = "";
    for (let y = 0; y < height; ++y) {
      for (let x = 0; x < width; ++x) {
        const level = levels[y * width + x];
        assert.equal(level, levels[(y - (y % SCALE)) * width + x - (x % SCALE)]);
        if (y % SCALE === 0 && x % SCALE === 0) panel += level;
      }
    }
    return panel;
  }

  test("title and heading name program, panel and port", LIMIT, async (t) => {
    const tab = await open(t);
    const name = `deskphone, panel narrow, port ${phone.port}`;
    assert.equal(await tab.page.title(), name);
    assert.equal(await tab.page.getByRole("heading", { level: 1 }).textContent(), name);
  });

  test("copies the screen as text", LIMIT, async (t) => {
    const tab = await open(t, { permissions: ["clipboard-read", "clipboard-write"] });
    await use(tab, "Copy text");
    await told(tab, "Text copied.");
    const text = await tab.page.evaluate(() => navigator.clipboard.readText());
    const rows = await tab.rows();
    const selected = await tab.selected();
    assert.equal(text, rows.map((row) => (row === selected ? "> " : "  ") + row + "\n").join(""));
    assert.match(text, /^> Call log$/m);
  });

  test("copies the screen as a picture", LIMIT, async (t) => {
    const tab = await open(t, { permissions: ["clipboard-read", "clipboard-write"] });
    await use(tab, "Copy picture");
    await told(tab, "Picture copied.");
    const bytes = await tab.page.evaluate(async () => {
      const [item] = await navigator.clipboard.read();
      return [...new Uint8Array(await (await item.getType("image/png")).arrayBuffer())];
    });
    assert.equal(await panelIn(Buffer.from(bytes)), await tab.levels());
  });

  test("saves the screen as picture and text", LIMIT, async (t) => {
    const tab = await open(t);
    const files = {};
    for (const [name, extension] of [["Save picture", "png"], ["Save text", "txt"]]) {
      const [download] = await Promise.all([tab.page.waitForEvent("download"), use(tab, name)]);
      assert.match(download.suggestedFilename(), new RegExp(`^deskphone-narrow-\\d{8}-\\d{6}\\.${extension}$`));
      files[extension] = await readFile(await download.path());
    }
    assert.equal(await panelIn(files.png), await tab.levels());
    assert.match(String(files.txt), /^ {2}\d\d\.\d\d\.\d{4} .*\n {2}Line 1\n> Call log\n {2}Contacts\n/);
  });

  test("says when the browser keeps its clipboard to itself", LIMIT, async (t) => {
    const tab = await open(t, { permissions: [] });
    await tab.page.evaluate(() => Object.defineProperty(navigator, "clipboard", { value: undefined }));
    await use(tab, "Copy picture");
    await told(tab, "The browser does not allow that here: save it instead.");
    await use(tab, "Copy text");
    await told(tab, "Text copied.");
  });

  test("shows all keys in an overlay, in front of which the telephone hears none", LIMIT, async (t) => {
    const tab = await open(t);
    const sent = [];
    tab.page.on("websocket", (socket) => socket.on("framesent", ({ payload }) => sent.push(String(payload))));
    await tab.page.reload();
    await tab.selects("Call log");
    for (const opens of [() => tab.page.keyboard.press("?"), () => use(tab, "All keys")]) {
      await opens();
      const overlay = tab.page.getByRole("dialog", { name: "All keys" });
      await overlay.waitFor();
      const text = await overlay.innerText();
      for (const key of ["Up, down, left, right", "OK", "0 to 9", "Star, hash", "Volume", "Hook", "Enter", "Esc", "?"])
        assert.ok(text.includes(key), key);
      for (const key of ["ArrowDown", "5", "Escape"]) await tab.page.keyboard.press(key);
      await overlay.waitFor({ state: "hidden" });
    }
    await pause(300);
    assert.deepEqual(sent.filter((message) => /^(down|up) /.test(message)), []);
    assert.equal(await tab.selected(), "Call log");
  });

  test("Enter on a tool uses the tool, and presses nothing", LIMIT, async (t) => {
    const tab = await open(t);
    await tab.page.getByRole("button", { name: "Copy text" }).focus();
    await tab.page.keyboard.press("Enter");
    await pause(300);
    assert.equal(await tab.selected(), "Call log");
    assert.notEqual(await tab.page.textContent("#told"), "");
  });
});
