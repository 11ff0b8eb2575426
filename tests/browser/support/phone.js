// Starts the launcher with an application behind the page, and stops it.

import { spawn } from "node:child_process";
import { once } from "node:events";
import { readFileSync } from "node:fs";
import path from "node:path";

export const BUILD = path.resolve(process.env.BUILD_DIR ?? "../../build/release");
export const program = (name) => path.join(BUILD, "bin", name);

/** What takes longer hangs: a step, a test, a file of them. A busy machine may be ten times slower than a quiet one. */
export const PATIENCE = 60_000;
export const LIMIT = { timeout: 180_000 };
export const SUITE_LIMIT = { timeout: 900_000 };

/** Looks until `condition` yields something true, and returns that. */
export async function until(condition, what, patience = PATIENCE) {
  const end = Date.now() + patience;
  for (;;) {
    const result = await condition();
    if (result) return result;
    if (Date.now() > end) throw new Error(`Waited ${patience} ms in vain: ${what}`);
    await new Promise((resolve) => setTimeout(resolve, 25));
  }
}

export class Phone {
  static async start({ variant = "plain", port = 0, options = [], app = [program("deskphone")], clock = "real" } = {}) {
    const phone = new Phone();
    const words = ["--variant", variant, "--port", port, ...options, ...app].map(String);
    phone.process = spawn(program("phone"), words, {
      stdio: ["ignore", "pipe", "pipe"], env: { ...process.env, DISPLAYAPI_CLOCK: clock },
    });
    phone.output = "";
    for (const stream of [phone.process.stdout, phone.process.stderr])
      stream.on("data", (data) => (phone.output += data));
    phone.ended = once(phone.process, "exit").then(([code]) => code);
    phone.ended.then(() => (phone.hasEnded = true));
    await until(() => phone.hasEnded || phone.output.includes("http://"), "the address of the telephone");
    if (phone.hasEnded) throw new Error(`The telephone has not started: ${phone.output}`);
    return phone;
  }

  get port() {
    return Number(new URL(this.url).port);
  }

  get url() {
    return this.output.match(/http:\S+/)[0];
  }

  /** The process of the application behind the launcher. */
  get applicationPid() {
    const { pid } = this.process;
    return Number(readFileSync(`/proc/${pid}/task/${pid}/children`, "utf8"));
  }

  /** Ends it in order, as Ctrl-C does, and returns the launcher's exit code. */
  async stop() {
    if (!this.hasEnded) this.process.kill("SIGINT");
    return this.ended;
  }

  /** Ends the application without a chance to say anything. */
  async kill() {
    process.kill(this.applicationPid, "SIGKILL");
    return this.ended;
  }
}
