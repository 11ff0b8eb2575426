// The inspector, beside the page: what it shows of a program, by mouse and keyboard, and of one that stands still or ends.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { LIMIT, Phone, program, SUITE_LIMIT, until } from "./support/phone.js";
import { Client, tokenFile } from "./support/rpc.js";

const OPTIONS = ["--rpc", "--virtual-clock"];
const tokenOf = (phone) => readFileSync(tokenFile(phone), "utf8").trim();

async function addressOf(phone) {
  const [, address] = await until(() => phone.output.match(/The inspector is at (\S+)\n/), "the address of the inspector");
  return address;
}

describe("the inspector", SUITE_LIMIT, () => {
  let browser, phone, client, tab;

  before(async () => {
    browser = await openBrowser();
    phone = await Phone.start({ options: OPTIONS });
    client = await Client.open(phone);
    tab = await look(phone);
  });

  after(async () => {
    client.end();
    await tab.close();
    await phone.stop();
    await browser.close();
  });

  /** The inspector of a telephone, once it shows something. */
  async function look(at, options = {}) {
    const looking = await Tab.open(browser, `${await addressOf(at)}?token=${tokenOf(at)}`, { connects: false, ...options });
    await looking.page.waitForSelector('body:not([data-state="connecting"])');
    return looking;
  }

  const says = (each, sentence) =>
    until(async () => sentence.test(await each.page.textContent("#sentence")), `the inspector says ${sentence}`);

  const text = (selector) => tab.page.textContent(selector);

  const figure = async (name) => Number(await tab.page.locator(`#counters dt:text-is("${name}") + dd`).textContent());

  /** How many requests the timeline shows. */
  const shown = async () => Number((await text("#records-title")).match(/(\d+) requests in the timeline/)?.[1] ?? 0);

  test("is printed without its token where others may read, and takes it out of the address", LIMIT, async () => {
    const address = await addressOf(phone);
    assert.ok(!phone.output.includes(tokenOf(phone)));
    assert.equal(tab.page.url(), address);
  });

  test("shows what is on the display, and follows it", LIMIT, async () => {
    await until(async () => (await text("#displayables")).includes("IdleDisplay"), "the first screen is in the stack");
    const { number } = await client.call("press", { key: "ok" });
    await client.call("waitFor", { text: "Call log", selected: true, since: number });
    const { displayables, threads } = await client.call("inspect");
    await until(async () => (await tab.page.locator("#displayables li").allTextContents()).join() === displayables.join(),
                "the stack is the program's");
    const gui = `deskphone, the GUI thread ${threads[0].thread}`;
    assert.ok((await tab.page.locator("#threads li").allTextContents()).includes(gui));
    assert.equal(await text("#nobody"), "Nobody waits for the GUI thread.");
    assert.ok((await figure("Requests carried out")) > 0);
    await until(() => tab.page.locator("#picture img").evaluate((image) => image.naturalWidth === 240), "the picture");
  });

  test("marks the widget at which the mouse or the focus is", LIMIT, async () => {
    const frame = tab.page.locator("#picture i");
    const items = tab.page.getByRole("treeitem");
    await items.first().focus();
    await tab.page.keyboard.press("ArrowRight");
    const focused = tab.page.locator("#tree li:focus");
    assert.equal(await focused.getAttribute("data-path"), "0/0");
    assert.equal(await text("#widget"), await focused.getAttribute("aria-label"));
    assert.ok(await frame.isVisible());

    await tab.page.keyboard.press("Home");
    await tab.page.keyboard.press("ArrowLeft");
    assert.equal(await items.first().getAttribute("aria-expanded"), "false");
    assert.equal(await items.count(), 1);
    await tab.page.keyboard.press("ArrowRight");
    assert.ok((await items.count()) > 1);

    await tab.page.locator("#picture img").hover({ position: { x: 40, y: 60 } });
    const marked = tab.page.locator("#tree .marked");
    assert.notEqual(await marked.locator("xpath=..").getAttribute("data-path"), "0");
    const [panel, box] = [await tab.page.locator("#picture img").boundingBox(), await frame.boundingBox()];
    assert.ok(box.x <= panel.x + 41 && box.x + box.width >= panel.x + 39, "the frame is around the mouse");
    assert.ok(box.y <= panel.y + 61 && box.y + box.height >= panel.y + 59, "the frame is around the mouse");
  });

  test("records requests, and shows those of the time to which one zooms", LIMIT, async () => {
    assert.equal(await text("#records-title"), "No requests recorded.");
    await tab.page.getByRole("button", { name: "Record" }).click();
    await until(async () => (await client.call("trace")).enabled, "the trace is on");
    for (const key of ["hook", "ok", "hook", "ok"]) await client.call("press", { key });
    await until(async () => (await shown()) > 2, "the requests are there");
    await tab.page.getByRole("button", { name: "Record" }).click();
    await until(async () => !(await client.call("trace")).enabled, "the trace is off");
    assert.match(await tab.page.locator("#records tbody tr").first().textContent(), /ms.*\(\d+\).*[A-Z_]{3,}/);

    await tab.page.locator("#timeline").focus();
    await tab.page.keyboard.press("Home");
    const all = await shown();
    await tab.page.keyboard.press("ArrowUp");
    assert.match(await text("#request"), / by .*\(\d+\): /);
    const span = () => tab.page.evaluate(() => timeline.view.to - timeline.view.from);
    const before = await span();
    await tab.page.keyboard.press("+");
    assert.ok((await span()) < before);
    for (let i = 0; i < 12; ++i) await tab.page.keyboard.press("ArrowRight");
    assert.equal(await shown(), 0, "what lies outside is not listed");
    await tab.page.locator("#timeline").hover();
    for (let i = 0; i < 15; ++i) await tab.page.mouse.wheel(0, 100);
    await until(async () => (await shown()) === all, "the wheel shows all of them again");
    await tab.page.getByRole("button", { name: "Clear" }).click();
    assert.equal(await text("#records-title"), "No requests recorded.");
  });

  test("fits a telephone's width, and forced colours", LIMIT, async (t) => {
    const narrow = await look(phone, { viewport: { width: 390, height: 844 }, forcedColors: "active", hasTouch: true });
    t.after(() => narrow.close());
    await narrow.page.waitForSelector("#tree li");
    assert.equal(await narrow.page.evaluate(() => document.documentElement.scrollWidth), 390);
    const colours = await narrow.page.$$eval(".legend i, #marked-colour", (all) =>
      all.map((each) => getComputedStyle(each)[each.id ? "color" : "backgroundColor"]));
    assert.equal(new Set(colours).size, 4, `each colour is another: ${colours}`);
    assert.deepEqual(narrow.errors, []);
  });

  test("asks for the token, and refuses another one", LIMIT, async (t) => {
    const asked = await Tab.open(browser, await addressOf(phone), { connects: false });
    t.after(() => asked.close());
    const field = asked.page.getByLabel("The token of the test interface");
    const enter = async (token) => {
      await field.fill(token);
      await field.press("Enter");
    };
    await enter("wrong");
    await until(async () => (await asked.page.textContent("#refused")).includes("not the token"), "it is refused");
    await enter(tokenOf(phone));
    await asked.page.waitForSelector('body[data-state="open"]');
    assert.ok(asked.requests.every((request) => new URL(request).port === String(phone.port) || request.startsWith("data:")));
  });

  test("leads to the telephone where that needs a token of its own, but not who may only look", LIMIT, async (t) => {
    const forOthers = [...OPTIONS, "--listen", "127.0.0.1", "--token", "open_sesame"];
    for (const options of [forOthers, [...forOthers, "--rpc-read-only"]]) {
      const listening = await Phone.start({ options });
      t.after(() => listening.stop());
      const looking = await look(listening);
      t.after(() => looking.close());
      await until(async () => (await looking.page.textContent("#program")) !== "", "the inspector has been greeted");
      const link = looking.page.getByRole("link", { name: "Telephone" });
      if (options.includes("--rpc-read-only")) {
        assert.equal(await link.count(), 0);
        continue;
      }
      await link.click();
      await looking.isConnected();
      assert.equal(looking.page.url(), listening.url);
    }
  });

  test("is not there without the test interface", LIMIT, async (t) => {
    const plain = await Phone.start();
    t.after(() => plain.stop());
    const answer = await fetch(`${plain.url}inspect`);
    assert.equal(answer.status, 404);
    assert.match(await answer.text(), /phone --rpc/);
  });

  test("names who waits for whom in a program that stands still, and tells that it has gone", LIMIT, async (t) => {
    const stuck = await Phone.start({ options: ["--rpc"], app: [program("deadlock"), "join"] });
    t.after(() => stuck.kill().catch(() => {}));
    const looking = await look(stuck);
    t.after(() => looking.close());
    await says(looking, /^The GUI thread stands still: it has been at \S+ \S+ for /);
    await until(async () => /^A cycle: deadlock .* waits for .* waits for deadlock /.test(await looking.page.textContent("#cycles")),
                "the cycle is named");
    assert.match(await looking.page.textContent("#waiting tbody"), /List SIZE/);
    assert.match(await looking.page.textContent("#said"), /stands still/);
    await stuck.kill();
    await says(looking, /^The program has gone\. Looking for it/);
    assert.deepEqual(looking.errors, []);
  });

  test("tells that the program has ended, and keeps what it has shown", LIMIT, async () => {
    await phone.stop();
    await says(tab, /^The program has ended\.$/);
    assert.ok((await tab.page.getByRole("treeitem").count()) > 1);
    assert.deepEqual(tab.errors, []);
  });
});
