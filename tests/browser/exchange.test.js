// The panel that makes calls arrive.

import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { pause } from "./support/figures.js";
import { LIMIT, Phone, program, SUITE_LIMIT, until } from "./support/phone.js";
import { coloursIn } from "./support/pictures.js";

const TOUCH = { viewport: { width: 390, height: 780 }, deviceScaleFactor: 3, hasTouch: true, isMobile: true };

describe("the exchange", SUITE_LIMIT, () => {
  let browser, phone;

  before(async () => {
    browser = await openBrowser();
    phone = await Phone.start({ variant: "narrow", app: [program("calls")] });
  });

  after(async () => {
    await browser.close();
    await phone.stop();
  });

  /** A tab with the panel open. */
  async function open(t, options) {
    const tab = await Tab.open(browser, phone.url, options);
    t.after(() => {
      assert.deepEqual(tab.errors, []);
      return tab.close();
    });
    const opener = tab.page.getByRole("button", { name: "Exchange", exact: true });
    await opener.waitFor();
    assert.equal(await opener.getAttribute("aria-expanded"), "false");
    await opener.click();
    assert.equal(await opener.getAttribute("aria-expanded"), "true");
    tab.panel = tab.page.getByRole("region", { name: "Exchange" });
    await tab.panel.waitFor();
    return tab;
  }

  const field = (tab) => tab.page.getByLabel("A line for the exchange");
  const say = async (tab, line) => {
    await field(tab).fill(line);
    await field(tab).press("Enter");
  };
  const answers = (tab, sentence) =>
    until(async () => (await tab.page.textContent("#exchange-answer")) === sentence, `it answers "${sentence}"`);

  test("has a button with which each number calls", LIMIT, async (t) => {
    const tab = await open(t);
    const offers = tab.panel.getByRole("group", { name: "Calls to this telephone" }).getByRole("button");
    assert.ok((await offers.count()) >= 10);
    await offers.filter({ hasText: "Ada Byron" }).click();
    await tab.shows("Ada Byron: incoming");
    await tab.button("ok").click();
    await tab.shows("Ada Byron: connected");
    await say(tab, "4711 ends");
    await tab.shows("Ada Byron: ended");
  });

  test("the lamp blinks while it rings, and the handset lies beside the telephone while one speaks", LIMIT, async (t) => {
    const tab = await open(t);
    const lamp = (name) => tab.page.getByRole("img", { name: `Call lamp, ${name}`, exact: true }).waitFor();
    const isLifted = () => tab.page.locator(".phone").evaluate((phone) => phone.hasAttribute("data-lifted"));
    const blinks = () => tab.page.locator(".ring").evaluate((ring) => getComputedStyle(ring).animationName);
    await lamp("dark");
    await say(tab, "4711 calls");
    await lamp("blinking");
    assert.equal(await blinks(), "blink");
    assert.equal(await isLifted(), false);
    await tab.page.emulateMedia({ reducedMotion: "reduce" });
    assert.equal(await blinks(), "none");
    await tab.button("ok").click();
    await lamp("dark");
    await until(isLifted, "the handset is lifted");
    await say(tab, "4711 ends");
    await until(async () => !(await isLifted()), "the handset is back");
  });

  test("the handset is a hook key", LIMIT, async (t) => {
    const tab = await Tab.open(browser, phone.url);
    t.after(() => tab.close());
    const sent = [];
    tab.page.on("websocket", (socket) => socket.on("framesent", ({ payload }) => sent.push(String(payload))));
    await tab.page.reload();
    await tab.isConnected();
    await tab.page.locator(".handset").click();
    await until(() => sent.includes("up hook"), "the key is let go");
    assert.deepEqual(sent.filter((message) => /^(down|up) /.test(message)), ["down hook", "up hook"]);
  });

  test("has a field for all else, which is empty once a line has been heard", LIMIT, async (t) => {
    const tab = await open(t);
    await say(tab, '4799 "Eve Holt" calls line 2');
    await tab.shows("Eve Holt: incoming");
    await until(async () => (await field(tab).inputValue()) === "", "there is room for the next line");
    await say(tab, "4799 ends");
    await tab.shows("Eve Holt: ended");
  });

  test("says what is wrong with a line, and keeps it", LIMIT, async (t) => {
    const tab = await open(t);
    await say(tab, "4711 holds");
    await answers(tab, "4711 has no call that it could hold");
    assert.equal(await field(tab).inputValue(), "4711 holds");
    assert.equal(await tab.page.getByRole("status").filter({ hasText: "no call" }).count(), 1);
    await say(tab, `4711 "${"\u{1F4DE}".repeat(249)}"`); // 1,003 bytes
    await answers(tab, "That is too long for the exchange.");
    await say(tab, `4711 "${"\u{1F4DE}".repeat(248)}"`); // 999
    await until(async () => (await tab.page.textContent("#exchange-answer")).startsWith("expected what"), "it is read");
  });

  test("what is written there presses no key, and Escape closes it", LIMIT, async (t) => {
    const tab = await open(t);
    const sent = [];
    tab.page.on("websocket", (socket) => socket.on("framesent", ({ payload }) => sent.push(String(payload))));
    await tab.page.reload();
    await tab.page.getByRole("button", { name: "Exchange", exact: true }).click();
    assert.equal(await field(tab).evaluate((input) => input === document.activeElement), true);
    await tab.page.keyboard.type("4711h?*#");
    await tab.page.keyboard.press("ArrowDown");
    assert.equal(await field(tab).inputValue(), "4711h?*#");
    await tab.page.keyboard.press("Escape");
    await tab.panel.waitFor({ state: "hidden" });
    assert.equal(await tab.page.evaluate(() => document.activeElement.textContent), "Exchange");
    await pause(300);
    assert.deepEqual(sent.filter((message) => /^(down|up|exchange) /.test(message)), []);
  });

  test("the telephone stays where it is, and hears its keys beside it", LIMIT, async (t) => {
    const tab = await open(t);
    const box = () => tab.page.locator(".phone").boundingBox();
    const opened = await box();
    await tab.panel.getByRole("button", { name: "Close" }).click();
    assert.deepEqual(await box(), opened);
    await tab.button("down").click();
  });

  test("can be hit with a finger, and fits a small screen", LIMIT, async (t) => {
    const tab = await open(t, TOUCH);
    assert.ok(await tab.page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), "no scrolling sideways");
    for (const part of await tab.panel.locator("button, input").all())
      assert.ok((await part.boundingBox()).height >= 44);
    const box = await tab.panel.boundingBox();
    assert.ok(box.x >= 0 && box.y >= 0 && box.x + box.width <= 390 && box.y + box.height <= 780);
  });

  for (const colorScheme of ["light", "dark"])
    test(`stands out with forced colours (${colorScheme})`, LIMIT, async (t) => {
      const tab = await open(t, { forcedColors: "active", colorScheme });
      assert.ok(coloursIn(await tab.panel.screenshot()).contrast >= 7);
    });

  test("is not there where the program has none", LIMIT, async (t) => {
    const other = await Phone.start({ app: [program("idle-display")] });
    t.after(() => other.stop());
    const tab = await Tab.open(browser, other.url);
    t.after(() => tab.close());
    await tab.shows("Two Peaks");
    await pause(300);
    assert.equal(await tab.page.getByRole("button", { name: "Exchange", exact: true }).count(), 0);
  });
});
