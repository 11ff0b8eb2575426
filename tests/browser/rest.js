// What the desk phone costs behind an open page while nobody touches it: share of one core and memory.
// `BUILD_DIR=... node rest.js [SECONDS]`

import { execSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { openBrowser, Tab } from "./support/browser.js";
import { pause } from "./support/figures.js";
import { Phone } from "./support/phone.js";

const SECONDS = Number(process.argv[2] ?? 30);
const TICKS_PER_SECOND = Number(execSync("getconf CLK_TCK"));

function processorSeconds(pid) {
  const fields = readFileSync(`/proc/${pid}/stat`, "utf8").split(") ")[1].split(" ");
  return (Number(fields[11]) + Number(fields[12])) / TICKS_PER_SECOND;
}

function megabytes(pid, field) {
  const line = readFileSync(`/proc/${pid}/status`, "utf8").match(new RegExp(`^${field}:\\s+(\\d+) kB`, "m"));
  return (Number(line[1]) / 1024).toFixed(1);
}

async function measure(pid, what) {
  await pause(2000);
  const before = processorSeconds(pid);
  await pause(1000 * SECONDS);
  const share = (100 * (processorSeconds(pid) - before)) / SECONDS;
  console.log(`${what}: ${share.toFixed(2)} % of a core over ${SECONDS} s, ` +
              `${megabytes(pid, "VmRSS")} MB resident, ${megabytes(pid, "VmHWM")} MB at most`);
}

const browser = await openBrowser();
const phone = await Phone.start();
try {
  const tab = await Tab.open(browser, phone.url);
  await tab.shows("Line 1");
  await measure(phone.applicationPid, "home screen, clock and news");
  await tab.openMenu();
  await tab.page.keyboard.press("Enter");
  await tab.shows("Missed");
  await measure(phone.applicationPid, "call log, clock");
} finally {
  await browser.close();
  await phone.stop();
}
