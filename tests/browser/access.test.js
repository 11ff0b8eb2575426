// The page for those who see, hear or move otherwise: contrast, names, what is said, shortcuts, motion.

import assert from "node:assert/strict";
import { after, afterEach, before, beforeEach, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { contrastOf, coloursIn, differingPixels } from "./support/pictures.js";
import { pause } from "./support/figures.js";
import { LIMIT, Phone, SUITE_LIMIT, until } from "./support/phone.js";

const SYSTEM_COLOURS = { "forced colours, dark": { forcedColors: "active", colorScheme: "dark" },
                         "forced colours, light": { forcedColors: "active", colorScheme: "light" } };

describe("access", SUITE_LIMIT, () => {
  let browser, phone, tab;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  beforeEach(async () => {
    phone = await Phone.start();
    tab = await Tab.open(browser, phone.url);
    await tab.openMenu();
    await until(async () => (await tab.page.textContent("#said")).includes("Call log"), "the menu is said");
  });

  afterEach(async () => {
    assert.deepEqual(tab.errors, []);
    await tab.close();
    await phone.stop();
  });

  async function anotherTab(t, options) {
    const another = await Tab.open(browser, phone.url, options);
    t.after(() => another.close());
    await another.shows("Call log");
    return another;
  }

  /** Everything that is said from now on, as it is said. */
  async function listen() {
    await tab.page.evaluate(() => {
      window.heard = [];
      const place = document.getElementById("said");
      new MutationObserver(() => window.heard.push(place.textContent))
        .observe(place, { childList: true, characterData: true, subtree: true });
    });
    return () => tab.page.evaluate(() => window.heard);
  }

  async function press(...keys) {
    const shown = () => tab.page.$$eval("#rows li", (items) => items.map((item) => item.outerHTML).join());
    for (const key of keys) {
      const before = await shown();
      await tab.page.keyboard.press(key);
      await until(async () => (await shown()) !== before, `${key} changes what is shown`);
    }
  }

  test("each key is called what is written on it", LIMIT, async () => {
    for (const key of await tab.page.locator("[data-key]").all()) {
      const label = (await key.innerText()).replace(/∗/, "*").split(/\s+/).filter(Boolean).join(" ");
      const name = (await key.getAttribute("aria-label")) ?? label;
      assert.ok(name.includes(label), `${name} has ${label}`);
      assert.notEqual(name, "");
      assert.equal(await tab.page.getByRole("button", { name, exact: true }).count(), 1, name);
    }
  });

  test("there is one heading of the first level", LIMIT, async () => {
    assert.equal(await tab.page.getByRole("heading", { level: 1 }).count(), 1);
  });

  /** The colour of an element's text, and those between which its background runs. */
  const paintOf = (selector) => tab.page.$$eval(selector, (elements) => elements.map((element) => {
    const behind = element.closest("[data-key], .phone, body");
    return { text: getComputedStyle(element).color, name: element.textContent,
             grounds: getComputedStyle(behind).backgroundImage.match(/rgba?\([^)]+\)/g) };
  }));

  test("letters stand out from their keys, and other texts from what they stand on", LIMIT, async () => {
    for (const selector of [".dial b", ".dial i", ".ok", ".brand", "#name", ".tools button"]) {
      const paints = (await paintOf(selector)).filter(({ name }) => name !== "");
      assert.ok(paints.length > 0, selector);
      for (const { text, grounds, name } of paints)
        for (const ground of grounds)
          assert.ok(contrastOf(text, ground) >= 4.5, `${name}: ${text} on ${ground} is ${contrastOf(text, ground)}`);
    }
  });

  const looks = { usual: {}, ...SYSTEM_COLOURS };
  for (const [look, options] of Object.entries(looks)) {
    test(`the key that has the focus cannot be missed (${look})`, LIMIT, async (t) => {
      const seen = await anotherTab(t, { reducedMotion: "reduce", ...options });
      await seen.page.addStyleTag({ content: "#panel { visibility: hidden }" });
      await seen.page.keyboard.press("Tab");
      for (const name of ["up", "down", "left", "right", "ok", "5", "hook", "volume-up"]) {
        const box = await seen.button(name).boundingBox();
        const clip = { x: box.x - 8, y: box.y - 8, width: box.width + 16, height: box.height + 16 };
        await seen.page.locator("[data-tool=showKeys]").focus();
        const before = await seen.page.screenshot({ clip });
        await seen.button(name).focus();
        const count = differingPixels(before, await seen.page.screenshot({ clip }), 3);
        const needed = 2 * 2 * (box.width + box.height) * 0.75; // a line of two pixels, corners rounded off
        assert.ok(count >= needed, `${name}: ${count} of ${needed} pixels`);
      }
    });
  }

  for (const [look, options] of Object.entries(SYSTEM_COLOURS)) {
    test(`the panel can be read and the keys be found (${look})`, LIMIT, async (t) => {
      const seen = await anotherTab(t, options);
      await looksClear(seen);
    });
  }

  test("the panel can be read and the keys be found (more contrast)", LIMIT, async () => {
    const session = await tab.context.newCDPSession(tab.page);
    await session.send("Emulation.setEmulatedMedia", { features: [{ name: "prefers-contrast", value: "more" }] });
    await looksClear(tab);
  });

  /** Ink against bare panel; each key's line against what is within and around it. */
  async function looksClear(seen) {
    const panel = seen.page.locator("#panel");
    await until(async () => coloursIn(await panel.screenshot()).contrast >= 15, "black and white");
    const picture = await seen.page.screenshot();
    const coloursOf = async (name) => coloursIn(picture, await seen.button(name).boundingBox());
    for (const name of ["1", "ok", "hook", "volume-down", "star"]) {
      const key = await coloursOf(name);
      assert.ok(key.contrast >= 7, `${name}: ${key.contrast}`);
      assert.ok(key.edge >= 0.4, `${name} has a line around it: ${key.edge}`);
    }
    for (const name of ["up", "down", "left", "right"])
      assert.ok((await coloursOf(name)).contrast >= 7, name);
  }

  test("what is selected is said once, in its language", LIMIT, async () => {
    const heard = await listen();
    await press("ArrowDown");
    await until(async () => (await heard()).length > 0, "something is said");
    await pause(500);
    assert.deepEqual(await heard(), ["Contacts. "]);
    assert.equal(await tab.page.getAttribute("#said span", "lang"), "en-GB");
  });

  test("a new screen is said with its title", LIMIT, async () => {
    await press("ArrowDown");
    const heard = await listen();
    await press("Enter");
    await until(async () => (await heard()).some((text) => text.includes("Zoë")), "the screen is said");
    assert.match((await heard()).join(), /Contacts\. .*Zoë Ångström, home/);
  });

  test("a screen whose rows come late is said with the title it began with", LIMIT, async () => {
    const said = await tab.page.evaluate(async () => {
      const told = [];
      const rows = new Rows(document.createElement("ul"), (texts) => told.push(texts));
      const shown = (...texts) => texts.map((text, index) => ({ text, selected: index === 2 }));
      const menu = shown("Line 1", "Menu", "Contacts", "Settings");
      for (const screen of [menu, shown("Line 1", "Contacts"), shown("Line 1", "Contacts", "Zoë")]) {
        rows.show(screen);
        await new Promise((resolve) => setTimeout(resolve, 2 * Rows.BREATH));
      }
      return told.slice(1);
    });
    assert.deepEqual(said, [["Contacts"], ["Zoë"]]);
  });

  test("the timer of a call is shown, and not said every second", LIMIT, async () => {
    await press("ArrowDown");
    for (const shown of ["Αλέξανδρος", "030", "Connected"]) {
      await tab.page.keyboard.press("Enter");
      await tab.shows(shown);
    }
    await pause(2000); // the key is long ago
    const heard = await listen();
    const status = async () => (await tab.rows()).join("|");
    for (let second = 0; second < 3; ++second) {
      const before = await status();
      await until(async () => (await status()) !== before, "the timer goes on");
    }
    assert.deepEqual(await heard(), []);
  });

  test("a row that an application counts in is not said every second either", LIMIT, async () => {
    await press("ArrowUp", "ArrowUp", "ArrowUp", "ArrowUp", "ArrowUp", "Enter");
    await tab.shows("Up ");
    await pause(2000);
    const heard = await listen();
    const uptime = async () => (await tab.rows()).find((row) => row.startsWith("Up "));
    for (let second = 0; second < 3; ++second) {
      const before = await uptime();
      await until(async () => (await uptime()) !== before, "the row is renewed");
    }
    assert.deepEqual(await heard(), []);
  });

  test("no row outlives the application", LIMIT, async () => {
    await phone.stop();
    await tab.says("The application has ended.");
    assert.deepEqual(await tab.rows(), []);
  });

  test("each row says its language and its direction", LIMIT, async () => {
    await press("ArrowDown", "Enter");
    for (const part of ["Contacts", "Zoë", "Αλέξανδρος", "Анна", "אברהם"]) await tab.shows(part); // one by one
    const rows = await tab.page.$$eval("#rows li", (items) => items.map(({ textContent, lang, dir }) =>
      ({ text: textContent, lang, dir })));
    const languageOf = (part) => rows.find(({ text }) => text.includes(part)).lang;
    assert.equal(languageOf("Contacts"), "en-GB");
    assert.equal(languageOf("Zoë"), "en-GB");
    assert.equal(languageOf("Αλέξανδρος"), "el");
    assert.equal(languageOf("Анна"), "und-Cyrl");
    assert.equal(languageOf("אברהם"), "he");
    const directions = await tab.page.$$eval("#rows li", (items) => items.map((item) =>
      [item.textContent, item.dir, getComputedStyle(item).direction]));
    for (const [text, dir, direction] of directions) {
      assert.equal(dir, "auto");
      assert.equal(direction, /^[\u0590-\u06FF]/.test(text) ? "rtl" : "ltr", text);
    }
  });

  test("the rows are in the telephone's language when that changes", LIMIT, async () => {
    await press("ArrowDown", "ArrowDown", "Enter");
    await tab.shows("Language");
    await press("Enter");
    await tab.shows("Deutsch");
    await press("ArrowUp", "ArrowUp", "Enter"); // English is chosen, and two before it is Arabic
    await tab.shows("العربية");
    await press("ArrowUp", "Enter"); // to the bar, which begins with Save
    await until(async () => (await tab.page.locator('#rows li[lang|="ar"]').count()) >= 3, "rows are Arabic");
    assert.equal(await tab.page.locator('#rows li[lang="und-Arab"]').count(), 0);
  });

  test("the keys of the keyboard can be switched off, and stay so", LIMIT, async () => {
    await tab.page.keyboard.press("?");
    await tab.page.getByLabel("Use these keys of the keyboard").uncheck();
    await tab.page.getByRole("button", { name: "Close" }).click();
    for (const visit of ["this one", "the next"]) {
      await tab.page.locator("body").click({ position: { x: 2, y: 2 } });
      for (const key of ["ArrowDown", "Enter", "?", "5"]) await tab.page.keyboard.press(key);
      await pause(300);
      assert.equal(await tab.selected(), "Call log", visit);
      assert.equal(await tab.page.locator("#keys").isVisible(), false, visit);
      await tab.page.reload();
      await tab.shows("Call log");
    }
    await tab.button("down").focus();
    await tab.page.keyboard.press("Enter");
    await tab.selects("Contacts");
  });

  /** The screen with the running text. */
  async function openNews() {
    await press("ArrowDown", "ArrowDown", "ArrowDown");
    await tab.page.keyboard.press("Enter");
    await tab.shows("Canteen");
  }

  /** How many different pictures the panel shows in that time and that many looks, which take a busy machine longer. */
  async function picturesIn(seen, milliseconds, looks) {
    const pictures = new Set();
    const end = Date.now() + milliseconds;
    for (let look = 0; look < looks || Date.now() < end; ++look) {
      pictures.add(await seen.levels());
      await pause(20);
    }
    return pictures.size;
  }

  const runs = async (seen) => (await picturesIn(seen, 1000, 20)) > 10;
  const rests = async (seen) => (await picturesIn(seen, 500, 5)) <= 2;
  const turnsPages = async (seen) => (await picturesIn(seen, 3500, 1)) <= 3;

  test("a running text turns page by page where less motion is wanted, in all tabs, and as long", LIMIT, async (t) => {
    await openNews();
    await until(() => runs(tab), "the text runs");
    const still = await Tab.open(browser, phone.url, { reducedMotion: "reduce" });
    t.after(() => still.close());
    await still.shows("Canteen");
    await until(() => rests(tab), "the text rests");
    assert.ok(await turnsPages(still));
    await still.close();
    await until(() => runs(tab), "the text runs again");
  });

  test("a user can ask for less motion here", LIMIT, async () => {
    await openNews();
    await tab.page.keyboard.press("?");
    await tab.page.getByLabel("Running texts turn page by page").check();
    await until(() => rests(tab), "the text rests");
    assert.ok(await turnsPages(tab));
  });
});
