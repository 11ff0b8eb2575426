// The page itself: what it shows, and that its keys press.

import assert from "node:assert/strict";
import { after, afterEach, before, beforeEach, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { LIMIT, Phone, program, SUITE_LIMIT, until } from "./support/phone.js";

const looksPressed = (button, isPressed) =>
  until(async () => /pressed/.test(await button.getAttribute("class") ?? "") === isPressed,
        isPressed ? "the button is pressed" : "the button is not pressed");

describe("the page", SUITE_LIMIT, () => {
  let browser, phone, tab;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  beforeEach(async () => {
    phone = await Phone.start();
    tab = await Tab.open(browser, phone.url);
    await tab.openMenu();
  });

  afterEach(async () => {
    assert.deepEqual(tab.errors, []);
    await tab.close();
    assert.equal(await phone.stop(), 0, phone.output);
  });

  test("shows the panel, and its rows as text", LIMIT, async () => {
    const [status, ...rows] = await tab.rows();
    assert.match(status, /^Line 1  \d\d\.\d\d\.\d{4}  \d\d:\d\d$/);
    assert.deepEqual(rows, ["Call log", "Contacts", "Settings", "Services"]);
    assert.equal(await tab.selected(), "Call log");
    const levels = await tab.levels();
    assert.equal(levels.length, 240 * 128);
    assert.match(levels, /^[0-3]+$/);
    assert.match(levels, /3/);
    assert.equal(await tab.notice(), "");
  });

  test("asks nobody else for anything", LIMIT, async () => {
    assert.deepEqual(tab.requests.filter((url) => !url.startsWith("data:")), [phone.url]);
  });

  test("presses keys with the mouse", LIMIT, async () => {
    const before = await tab.levels();
    await tab.button("down").click();
    await tab.selects("Contacts");
    await tab.looksOtherThan(before);
    await tab.button("ok").click();
    await tab.shows("Zoë Ångström");
    await tab.button("left").click();
    await tab.shows("Desk phone");
  });

  test("a key that comes with another one leaves no call behind that nobody can end", LIMIT, async () => {
    await tab.button("ok").click();
    await tab.shows("Ελένη Ιωάννου");
    for (let round = 0; round < 5; ++round) {
      await tab.page.evaluate(() => {
        for (const key of ["Enter", "ArrowLeft"])
          for (const type of ["keydown", "keyup"])
            document.dispatchEvent(new KeyboardEvent(type, { key, bubbles: true }));
      });
      // Left may come to the call, which goes on, or to the screen before, which has been left; the handset ends it.
      await new Promise((resolve) => setTimeout(resolve, 300));
      await tab.button("hook").click();
      await tab.shows("Missed");
      assert.match((await tab.rows())[0], /^Line 1  \d\d:\d\d$/);
    }
  });

  test("presses keys with the keyboard", LIMIT, async () => {
    const before = await tab.levels();
    await tab.page.keyboard.press("ArrowDown");
    await tab.selects("Contacts");
    await tab.looksOtherThan(before);
    await tab.page.keyboard.press("Enter");
    await tab.shows("Zoë Ångström");
    await tab.page.keyboard.press("ArrowLeft");
    await tab.shows("Desk phone");
  });

  test("has a named button for each key, pressed by its key of the keyboard", LIMIT, async () => {
    const keys = {
      up: ["Up", "ArrowUp"], down: ["Down", "ArrowDown"], left: ["Left", "ArrowLeft"], right: ["Right", "ArrowRight"],
      ok: ["OK", "Enter"], star: ["* Star", "*"], hash: ["# Hash", "#"], "volume-up": ["Volume up", "+"],
      "volume-down": ["Volume down", "-"], hook: ["Hook", "Escape"],
    };
    const letters = ["+", "", "ABC", "DEF", "GHI", "JKL", "MNO", "PQRS", "TUV", "WXYZ"];
    for (const digit of "0123456789") keys[digit] = [`${digit} ${letters[digit]}`.trim(), digit];
    const others = ':not([data-key^="fpk"])';
    assert.equal(await tab.page.locator(`[data-key]${others}`).count(), Object.keys(keys).length);
    for (const [key, [name, keyboardKey]] of Object.entries(keys)) {
      const button = tab.page.getByRole("button", { name, exact: true });
      assert.equal(await button.getAttribute("data-key"), key);
      await tab.page.keyboard.down(keyboardKey);
      await looksPressed(button, true);
      await tab.page.keyboard.up(keyboardKey);
      await looksPressed(button, false);
    }
  });

  test("lets Enter press the button that has the focus", LIMIT, async () => {
    await tab.button("down").focus();
    await tab.page.keyboard.press("Enter");
    await tab.selects("Contacts");
    await tab.page.keyboard.press("Space");
    await tab.selects("Settings");
  });

  test("goes on through the list while a key is held, and no longer", LIMIT, async () => {
    await tab.button("down").click();
    await tab.button("ok").click();
    await tab.selects("Zoë Ångström, home");
    await tab.button("down").hover();
    await tab.page.mouse.down();
    await tab.hides("Zoë Ångström, home");
    await tab.page.mouse.up();
    const settled = await until(async () => {
      const row = await tab.selected();
      await new Promise((resolve) => setTimeout(resolve, 400));
      return (await tab.selected()) === row && row;
    }, "the list stands still");
    assert.notEqual(settled, "Zoë Ångström, home");
  });

  test("lets go of a key when the tab loses the keyboard", LIMIT, async () => {
    await tab.page.keyboard.down("5");
    await looksPressed(tab.button("5"), true);
    await tab.page.evaluate(() => window.dispatchEvent(new Event("blur")));
    await looksPressed(tab.button("5"), false);
  });

  test("shows a row that an application thread renews", LIMIT, async () => {
    for (let row = 0; row < 5; ++row) await tab.page.keyboard.press("ArrowUp");
    await tab.selects("About");
    await tab.page.keyboard.press("Enter");
    await tab.shows("Up ");
    const uptime = async () => (await tab.rows()).find((row) => row.startsWith("Up "));
    const first = await uptime();
    await until(async () => (await uptime()) !== first, "the row is renewed");
  });
});

describe("the programmable keys", SUITE_LIMIT, () => {
  let browser;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  const namesOf = (tab) => tab.page.locator(".programmable button").evaluateAll(
    (buttons) => buttons.map((button) => button.getAttribute("aria-label")));

  for (const [variant, count] of [["plain", 5], ["wp1", 3]]) {
    test(`are as many as there are labels, beside the display of ${variant}`, LIMIT, async (t) => {
      const phone = await Phone.start({ variant, app: [program("desktop")] });
      t.after(() => phone.stop());
      const tab = await Tab.open(browser, phone.url);
      t.after(() => tab.close());
      await tab.shows("Quiet");
      await until(async () => (await namesOf(tab)).length === count, "the page has the keys");
      const glass = await tab.page.locator(".glass").boundingBox();
      const first = await tab.button("fpk1").boundingBox();
      assert.ok(first.x >= glass.x + glass.width && first.height >= 24, "they are beside it, and can be hit");
      assert.ok(await tab.page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), "no scrolling sideways");

      await tab.button("fpk1").click();
      await tab.shows("Do not disturb");
      await until(async () => (await namesOf(tab))[0] === "Programmable key 1, lit", "its lamp is lit");
      const late = await Tab.open(browser, phone.url);
      t.after(() => late.close());
      await until(async () => (await namesOf(late))[0] === "Programmable key 1, lit", "a later tab sees it lit");
      await tab.button("fpk1").click();
      await until(async () => (await namesOf(tab))[0] === "Programmable key 1", "its lamp is dark");
      assert.deepEqual(tab.errors, []);
    });
  }

  test("are none without a desktop", LIMIT, async (t) => {
    const phone = await Phone.start({ app: [program("idle-display")] });
    t.after(() => phone.stop());
    const tab = await Tab.open(browser, phone.url);
    t.after(() => tab.close());
    await tab.shows("Two Peaks");
    assert.deepEqual(await namesOf(tab), []);
  });
});
