// Whoever talks to the socket, the application and the pages go on.

import assert from "node:assert/strict";
import { randomBytes } from "node:crypto";
import { once } from "node:events";
import { readFileSync } from "node:fs";
import net from "node:net";
import { after, afterEach, before, beforeEach, describe, test } from "node:test";
import WebSocket from "ws";
import { openBrowser, Tab } from "./support/browser.js";
import { pause } from "./support/figures.js";
import { LIMIT, PATIENCE, Phone, SUITE_LIMIT, until } from "./support/phone.js";

describe("the socket", SUITE_LIMIT, () => {
  let browser, phone, tab, sockets;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  beforeEach(async () => {
    sockets = [];
    phone = await Phone.start();
    tab = await Tab.open(browser, phone.url);
    await tab.openMenu();
  });

  afterEach(async () => {
    for (const socket of sockets) (socket.terminate ?? socket.destroy).call(socket);
    await tab.close();
    assert.equal(await phone.stop(), 0, phone.output);
  });

  function socket({ origin = `http://127.0.0.1:${phone.port}`, headers = {}, query = "" } = {}) {
    const client = new WebSocket(`ws://127.0.0.1:${phone.port}/socket${query}`, { origin, headers });
    client.on("error", () => {});
    sockets.push(client);
    return client;
  }

  const outcome = (client) => Promise.race([once(client, "open").then(() => "open", () => "refused"),
                                            once(client, "close").then(() => "refused")]);

  async function opened(options) {
    const client = socket(options);
    assert.equal(await outcome(client), "open");
    return client;
  }

  /** A client with a place of its own: its handshake alone is over before the server has given it one. */
  async function admitted() {
    const client = socket();
    await new Promise((resolve, reject) => {
      client.on("message", (_, isFrame) => isFrame && resolve());
      client.on("close", () => reject(new Error("there is no place")));
    });
    return client;
  }

  /** Presses again where nothing moves: a step that was still on its way to the page may have undone the key's. */
  async function stillWorks() {
    const before = await tab.selected();
    const moves = async () => (await tab.selected()) !== before;
    await until(async () => {
      await tab.button(before === "Call log" ? "down" : "up").click();
      return until(moves, "the selection moves", 1_000).catch(() => false);
    }, "a key of the page moves the selection");
    assert.equal(await tab.state(), "open");
  }

  /** What was on its way has been handled: the screen has been the same for a second. */
  async function restsAgain() {
    let last = "";
    await until(async () => {
      const before = last;
      last = (await tab.rows()).join("|");
      if (last === before) return true;
      await pause(1_000);
      return false;
    }, "the telephone rests again");
  }

  const isDialling = async () => (await tab.rows()).some((row) => row.startsWith("Dial"));

  const memory = () => Number(readFileSync(`/proc/${phone.applicationPid}/status`, "utf8").match(/VmRSS:\s+(\d+)/)[1]);

  test("takes a page from here", LIMIT, async () => {
    const client = socket();
    const messages = [];
    client.on("message", (data) => messages.push(data));
    const second = () => {
      const rows = messages.map(String).findLast((message) => message.includes('"rows"'));
      return rows && JSON.parse(rows).rows[1].text;
    };
    await until(() => second() === "Call log", "the menu arrives, be it in several frames");
    await until(() => messages.length >= 4, "the greeting, the frame and the lamps arrive");
    const [greeting] = messages;
    const frame = messages.find((message) => message.length === 8 + 240 * 128 / 4);
    assert.ok(messages.some((message) => String(message) === '{"lamps":[false,false,false,false,false]}'));
    assert.deepEqual(JSON.parse(greeting), { application: { program: "deskphone", panel: "plain" } });
    assert.deepEqual([frame.readUInt16LE(0), frame.readUInt16LE(2)], [240, 128]);
  });

  test("refuses pages from elsewhere", LIMIT, async () => {
    for (const origin of ["http://evil.example", "http://127.0.0.1:1", "null", `https://127.0.0.1:${phone.port}`])
      assert.equal(await outcome(socket({ origin })), "refused", origin);
    assert.equal(await outcome(socket({ origin: null })), "refused");
    const headers = { Host: `evil.example:${phone.port}` };
    assert.equal(await outcome(socket({ origin: `http://evil.example:${phone.port}`, headers })), "refused");
    await stillWorks();
  });

  test("refuses the page under a foreign name", LIMIT, async () => {
    const client = net.connect(phone.port, "127.0.0.1");
    client.write(`GET / HTTP/1.1\r\nHost: evil.example:${phone.port}\r\n\r\n`);
    const [answer] = await once(client, "data");
    client.destroy();
    assert.match(String(answer), /^HTTP\/1\.1 403 /);
  });

  test("has nothing but the page", LIMIT, async () => {
    for (const address of ["/phone.js", "/../../etc/passwd", "/socket", "/%2e%2e%2fetc/passwd", "/index.html"])
      assert.notEqual((await fetch(new URL(address, phone.url))).status, 200, address);
    assert.equal((await fetch(phone.url, { method: "POST", body: "x" })).status, 405);
  });

  test("closes on whoever talks nonsense", LIMIT, async () => {
    const nonsense = ["", "hello", "down", "down middle", "up \u0000", "seen x", "motion", '{"key":"ok"}', "x".repeat(1_000_000),
                      randomBytes(64), randomBytes(1_000_000)];
    for (const message of nonsense) {
      const client = await opened();
      client.send(message);
      await Promise.race([once(client, "close"), new Promise((_, reject) => setTimeout(
        () => reject(new Error(`not closed after ${String(message).slice(0, 20)}`)), PATIENCE).unref())]);
    }
    await stillWorks();
  });

  test("survives bytes that are no message at all", LIMIT, async () => {
    for (let i = 0; i < 20; ++i) {
      const client = await opened();
      client._socket.write(randomBytes(2_000));
      client._socket.end();
    }
    await stillWorks();
  });

  test("survives a flood of keys", LIMIT, async () => {
    const client = await opened();
    for (let i = 0; i < 20_000; ++i) {
      const key = ["up", "down", "volume-up", "hook"][i % 4];
      client.send(`down ${key}`);
      client.send(`up ${key}`);
    }
    await until(() => client.bufferedAmount === 0, "the flood is over");
    client.terminate();
    await restsAgain();
    if (await isDialling()) await tab.button("hook").click(); // the last of them that came through has lifted the handset
    await until(async () => !(await isDialling()), "the handset is down");
    await stillWorks();
    assert.ok(memory() < 200_000, `the application has grown to ${memory()} KB`);
  });

  test("keeps its pace beside readers that do not read", LIMIT, async () => {
    for (let i = 0; i < 8; ++i) (await opened())._socket.pause();
    const liar = await opened(); // says that it has seen what it has not read
    liar._socket.pause();
    let frame = 0;
    const lying = setInterval(() => liar.send(`seen ${++frame}`), 1);
    await tab.button("down").click();
    await tab.button("ok").click();
    await tab.shows("Zoë Ångström, home");
    const before = memory();
    await tab.button("down").hover();
    await tab.page.mouse.down();
    await tab.hides("Zoë Ångström, home");
    await new Promise((resolve) => setTimeout(resolve, 2_000));
    await tab.page.mouse.up();
    clearInterval(lying);
    assert.ok(memory() < before + 20_000, `the application has grown from ${before} to ${memory()} KB`);
    await stillWorks();
  });

  test("has room for sixteen pages, and again when they have gone", LIMIT, async () => {
    const clients = [];
    for (let i = 0; i < 15; ++i) clients.push(await admitted());
    const full = socket();
    const messages = [];
    full.on("message", (data) => messages.push(String(data)));
    await once(full, "close");
    assert.equal(messages.at(-1), '{"full":16}');
    clients.forEach((client) => client.terminate());
    await until(() => getsFrames(), "there is room again");
    await stillWorks();
  });

  async function getsFrames() {
    const client = socket();
    const gotFrame = new Promise((resolve) => client.on("message", (_, isBinary) => isBinary && resolve(true)));
    const result = await Promise.race([gotFrame, once(client, "close").then(() => false)]);
    client.terminate();
    return result;
  }

  test("cannot be held up by those for whom there is no room", LIMIT, async () => {
    for (let i = 0; i < 15; ++i) await admitted();
    for (let i = 0; i < 30; ++i) {
      const client = socket();
      await outcome(client);
      client._socket?.pause(); // hears nothing, and does not go
    }
    assert.equal((await fetch(phone.url)).status, 200);
    await stillWorks();
  });

  test("serves the page beside callers that say nothing", LIMIT, async () => {
    for (let i = 0; i < 30; ++i) {
      const client = net.connect(phone.port, "127.0.0.1");
      client.on("error", () => {});
      sockets.push(client);
      await once(client, "connect");
    }
    await stillWorks();
    const another = await Tab.open(browser, phone.url);
    await another.shows("Settings");
    await another.close();
  });
});
