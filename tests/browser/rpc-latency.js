// How long the test interface takes: node rpc-latency.js [SECONDS]. Run it with nothing beside it.

import { readFileSync } from "node:fs";
import { percentile, pause } from "./support/figures.js";
import { Phone } from "./support/phone.js";
import { Client } from "./support/rpc.js";

const SECONDS = Number(process.argv[2] ?? 5);
const CHANGES_A_SECOND = 200;
const SUBSCRIBERS = 20;

const phone = await Phone.start({ options: ["--rpc"] });
const client = await Client.open(phone);

const say = (what, figures, unit = "ms") =>
  console.log(`${what}: p50 ${percentile(figures, 0.5).toFixed(2)}, p99 ${percentile(figures, 0.99).toFixed(2)} ${unit}`);

async function measured(count, work) {
  const times = [];
  for (let i = 0; i < count; ++i) {
    const begin = performance.now();
    await work(i);
    times.push(performance.now() - begin);
  }
  return times;
}

/** The GUI thread is the program's first one. */
const guiMilliseconds = () =>
  Number(readFileSync(`/proc/${phone.applicationPid}/task/${phone.applicationPid}/schedstat`, "utf8").split(" ")[0]) / 1e6;

/** Moves the selection so many times a second; returns what that costs the GUI thread per change, in microseconds. */
async function change(sent) {
  const before = guiMilliseconds();
  const count = CHANGES_A_SECOND * SECONDS;
  const begin = performance.now();
  for (let i = 0; i < count; ++i) {
    await pause(Math.max(0, begin + (i * 1000) / CHANGES_A_SECOND - performance.now()));
    const at = performance.now();
    const { number } = await client.call("press", { key: i % 2 ? "up" : "down" });
    sent?.set(number, at);
  }
  return ((guiMilliseconds() - before) * 1000) / count;
}

await client.call("press", { key: "ok" });
await client.call("waitFor", { text: "Call log", selected: true });
await measured(200, () => client.call("hello")); // warms up

say("press to answer", await measured(1000, (i) => client.call("press", { key: i % 2 ? "up" : "down" })));
say("waitFor that holds already", await measured(1000, () => client.call("waitFor", { text: "Call log" })));

const alone = await change();

const heard = []; // [number, time]
const subscribers = [];
for (let i = 0; i < SUBSCRIBERS; ++i) {
  const subscriber = await Client.open(phone);
  await subscriber.call("subscribe");
  subscriber.socket.removeAllListeners("message");
  subscriber.socket.on("message", (data) => heard.push([data, performance.now()]));
  subscribers.push(subscriber);
}
const sent = new Map();
const together = await change(sent);
await pause(200);
const times = heard.map(([data, at]) => [Number(String(data.subarray(0, 200)).match(/"number":(\d+)/)[1]), at])
  .filter(([number]) => sent.has(number)).map(([number, at]) => at - sent.get(number));
say(`change to one of ${SUBSCRIBERS} subscribers, key included`, times);
console.log(`notifications: ${heard.length} of ${SUBSCRIBERS * CHANGES_A_SECOND * SECONDS}`);
console.log(`GUI thread: ${alone.toFixed(1)} us per change alone, ${together.toFixed(1)} us with ${SUBSCRIBERS} subscribers: ` +
            `${((together - alone) / SUBSCRIBERS).toFixed(2)} us for each of them`);

for (const each of [client, ...subscribers]) each.end();
await phone.stop();
