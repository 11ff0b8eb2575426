// Programs at the test interface of a real telephone: what one of them does, the others and the application go on.

import assert from "node:assert/strict";
import { once } from "node:events";
import { existsSync, readFileSync, statSync } from "node:fs";
import { afterEach, beforeEach, describe, test } from "node:test";
import { LIMIT, Phone, SUITE_LIMIT, until } from "./support/phone.js";
import { Client, connect, tokenFile } from "./support/rpc.js";

describe("the test interface", SUITE_LIMIT, () => {
  let phone, client;

  beforeEach(async () => {
    phone = await Phone.start({ options: ["--rpc", "--virtual-clock"] });
    client = await Client.open(phone);
  });

  afterEach(async () => {
    client.end();
    if (!phone.hasEnded) assert.equal(await phone.stop(), 0, phone.output);
  });

  /** Another client presses, waits and reads. */
  async function othersGoOn() {
    const other = await Client.open(phone);
    const { number } = await other.call("press", { key: "ok" });
    const { held } = await other.call("waitFor", { absent: "no such text", since: number });
    assert.ok(held);
    other.end();
  }

  test("has a token that only the owner reads, and takes away in the end", LIMIT, async () => {
    const file = tokenFile(phone);
    assert.equal(statSync(file).mode & 0o777, 0o600);
    assert.match(readFileSync(file, "utf8"), /^[0-9a-f]{48}\n$/);
    await phone.stop();
    assert.equal(existsSync(file), false);
  });

  test("opens to nobody else", LIMIT, async () => {
    const token = readFileSync(tokenFile(phone), "utf8").trim();
    const right = { Authorization: `Bearer ${token}` };
    const strangers = [
      {}, { headers: { Authorization: "Bearer wrong" } }, { query: "?token=" }, { query: `?token=${token}x` },
      { headers: right, origin: "http://evil.example" }, { headers: right, origin: "null" },
      { headers: { ...right, Host: `evil.example:${phone.port}` } },
    ];
    for (const stranger of strangers) await assert.rejects(connect(phone, stranger), undefined, JSON.stringify(stranger));
    for (const friend of [{ headers: right }, { query: `?token=${token}` },
                          { headers: right, origin: `http://127.0.0.1:${phone.port}` }])
      (await connect(phone, friend)).terminate();
  });

  test("two clients see the same screens", LIMIT, async () => {
    const other = await Client.open(phone);
    await other.call("subscribe");
    const { number } = await client.call("press", { key: "ok" });
    const { held, screen } = await other.call("waitFor", { text: "Call log", selected: true, since: number });
    assert.ok(held);
    const seen = await client.call("screen");
    if (seen.number === screen.number) assert.equal(seen.text, screen.text);
    else assert.ok(seen.number > screen.number);
    await until(() => other.notes.length > 0, "the change arrives");
    assert.equal(other.notes[0].method, "changed");
    other.end();
  });

  test("the screen waits for nobody who waits", LIMIT, async () => {
    const waiting = client.call("waitFor", { text: "no such text", timeout: 60_000 });
    await client.call("press", { key: "ok" });
    client.end();
    await assert.rejects(waiting);
    await othersGoOn();
  });

  test("a client that never reads holds nobody up", LIMIT, async () => {
    const lazy = await Client.open(phone);
    await lazy.call("subscribe");
    lazy.socket._socket.pause();
    for (let i = 0; i < 2_000; ++i) lazy.send("screen");
    for (let i = 0; i < 300; ++i) await client.call("press", { key: i % 2 ? "up" : "down" });
    await othersGoOn();
    lazy.end();
  });

  test("a client that floods holds nobody up", LIMIT, async () => {
    const flooding = await Client.open(phone);
    for (let i = 0; i < 5_000; ++i) flooding.send("press", { key: "volume-up" });
    for (const nonsense of ["[", "[]", "{}", "[".repeat(60_000), '{"jsonrpc":"2.0","method":"none","id":1}'])
      flooding.socket.send(nonsense);
    for (let i = 0; i < 20; ++i) await othersGoOn();
    flooding.end();
    await othersGoOn();
  });

  test("a huge message ends its connection alone", LIMIT, async () => {
    const huge = await Client.open(phone);
    huge.socket.send("x".repeat(1_000_000));
    await once(huge.socket, "close");
    await othersGoOn();
  });

  test("only looks where it may only look", LIMIT, async () => {
    const looking = await Phone.start({ options: ["--rpc", "--rpc-read-only"] });
    const reader = await Client.open(looking);
    await assert.rejects(reader.call("press", { key: "ok" }), { code: -32002 });
    assert.equal((await reader.call("hello")).readOnly, true);
    reader.end();
    await looking.stop();
  });

  test("an application that ends says so", LIMIT, async () => {
    const waiting = assert.rejects(client.call("waitFor", { text: "no such text", timeout: 60_000 }), { code: -32006 });
    await client.call("hello");
    const closed = once(client.socket, "close");
    await phone.stop();
    await waiting;
    assert.equal((await closed)[0], 1001);
    assert.deepEqual(client.notes.at(-1), { jsonrpc: "2.0", method: "ended" });
  });

  test("an application that crashes breaks the connection", LIMIT, async () => {
    const closed = once(client.socket, "close");
    await phone.kill();
    assert.equal((await closed)[0], 1006);
  });

  test("is not there unless it is asked for", LIMIT, async () => {
    const plain = await Phone.start();
    await assert.rejects(connect(plain, { query: "?token=" }));
    await plain.stop();
  });
});
