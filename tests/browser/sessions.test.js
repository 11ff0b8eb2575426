// Several tabs, and applications that end, crash and come back.

import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { LIMIT, Phone, program, SUITE_LIMIT, until } from "./support/phone.js";

const STOPPED = "The application has stopped. Reconnecting…";
const ENDED = "The application has ended.";
const STANDS = "The application does not answer.";

describe("a session", SUITE_LIMIT, () => {
  let browser;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  async function start(t, options) {
    const phone = await Phone.start(options);
    t.after(() => phone.stop());
    return phone;
  }

  async function open(t, phone, options) {
    const tab = await Tab.open(browser, phone.url, options);
    t.after(() => tab.close());
    return tab;
  }

  test("is the same in all tabs", LIMIT, async (t) => {
    const phone = await start(t);
    const [one, other] = [await open(t, phone), await open(t, phone)];
    await other.openMenu();
    await one.button("down").click();
    await other.selects("Contacts");
    await other.page.keyboard.press("ArrowDown");
    await one.selects("Settings");
    await until(async () => (await one.levels()) === (await other.levels()), "both show the same pixels");
  });

  test("goes on when a tab closes or crashes", LIMIT, async (t) => {
    const phone = await start(t);
    const [one, other] = [await open(t, phone), await open(t, phone)];
    await other.openMenu();
    await one.close();
    const crashing = await open(t, phone);
    await Promise.all([crashing.page.waitForEvent("crash"), crashing.page.goto("chrome://crash").catch(() => {})]);
    await other.button("down").click();
    await other.selects("Contacts");
  });

  test("lets go of the keys that a vanished tab held", LIMIT, async (t) => {
    const phone = await start(t);
    const [one, other] = [await open(t, phone), await open(t, phone)];
    await other.openMenu();
    await other.button("down").click();
    await other.button("ok").click();
    await other.selects("Zoë Ångström, home");
    await one.page.keyboard.down("ArrowDown");
    await other.hides("Zoë Ångström, home");
    await one.close();
    await until(async () => {
      const row = await other.selected();
      await new Promise((resolve) => setTimeout(resolve, 400));
      return (await other.selected()) === row;
    }, "the list stands still");
  });

  test("tells of a crash, and takes up again what is started anew", LIMIT, async (t) => {
    const phone = await start(t);
    const tab = await open(t, phone);
    await tab.shows("Line 1");
    assert.equal(await phone.kill(), 128 + 9);
    assert.match(phone.output, /The application was stopped by SIGKILL \(Killed\)\./);
    await tab.says(STOPPED);
    assert.equal(await tab.state(), "broken");

    await start(t, { port: phone.port });
    await tab.isConnected();
    assert.equal(await tab.notice(), "");
    await tab.openMenu();
    await tab.button("down").click();
    await tab.selects("Contacts");
  });

  test("tells of an application that brings itself down", LIMIT, async (t) => {
    const phone = await start(t, { app: [program("misbehaving"), "crash"] });
    const tab = await open(t, phone);
    await tab.selects("Do it");
    await tab.button("ok").click();
    await tab.says(STOPPED);
    assert.equal(await phone.ended, 128 + 6);
    assert.match(phone.output, /The application was stopped by SIGABRT \(Aborted\)\./);
  });

  test("tells of an orderly end, and takes up again what is started anew", LIMIT, async (t) => {
    const phone = await start(t);
    const tab = await open(t, phone);
    await tab.shows("Line 1");
    assert.equal(await phone.stop(), 0);
    assert.match(phone.output, /The application has ended\./);
    await tab.says(ENDED);
    await new Promise((resolve) => setTimeout(resolve, 1_000)); // tries in between change nothing
    assert.equal(await tab.notice(), ENDED);

    await start(t, { port: phone.port });
    await tab.isConnected();
    await tab.shows("Line 1");
  });

  test("tells that the application stands still, and when it goes on", LIMIT, async (t) => {
    const phone = await start(t, { app: [program("misbehaving"), "stall", "100"] });
    const tab = await open(t, phone);
    await tab.selects("Do it");
    await tab.button("ok").click();
    const begun = Date.now();
    await tab.says(STANDS);
    assert.ok(Date.now() - begun >= 1_500, "what takes no two seconds is nothing to tell");
    assert.equal(await tab.state(), "standing");
    const late = await Tab.open(browser, phone.url, { connects: false });
    t.after(() => late.close());
    await late.says(STANDS);
    process.kill(phone.applicationPid, "SIGUSR1");
    for (const each of [tab, late]) {
      await each.isConnected();
      await each.shows("It took its time");
      assert.equal(await each.notice(), "");
    }
  });

  test("tells of an application that never gets to its screens", LIMIT, async (t) => {
    const phone = await start(t, { app: [program("misbehaving"), "deaf"] });
    const tab = await Tab.open(browser, phone.url, { connects: false });
    t.after(() => tab.close());
    await tab.says(STANDS);
  });

  test("tells the tab for which there is no room, and lets it in later", LIMIT, async (t) => {
    const phone = await start(t);
    const tabs = [];
    for (let i = 0; i < 16; ++i) tabs.push(await open(t, phone));
    await tabs.at(-1).shows("Line 1");
    const late = await Tab.open(browser, phone.url, { connects: false });
    t.after(() => late.close());
    await late.says("16 tabs show this telephone already: close one of them.");
    await new Promise((resolve) => setTimeout(resolve, 4_000)); // tries in between change nothing
    assert.equal(await late.state(), "full");
    await tabs[0].close();
    await late.isConnected();
    await late.shows("Line 1");
    assert.equal(await late.notice(), "");
  });

  test("needs the token where it is not for this machine only", LIMIT, async (t) => {
    const options = ["--listen", "127.0.0.1", "--token", "open_sesame"];
    const phone = await start(t, { options });
    assert.ok(phone.url.endsWith("/?token=open_sesame"), phone.url);
    const tab = await open(t, phone);
    await tab.shows("Line 1");
    for (const address of ["/", "/?token=open_sesam", "/?token="]) {
      const answer = await fetch(new URL(address, phone.url));
      assert.equal(answer.status, 403, address);
      assert.doesNotMatch(await answer.text(), /<canvas/);
    }
  });

  test("cannot start on a port that is busy", LIMIT, async (t) => {
    const { port } = await start(t);
    await assert.rejects(Phone.start({ port }), new RegExp(`Port ${port} is busy: another program listens on it`));
  });
});
