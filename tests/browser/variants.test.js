// The three panels: what the page draws is what the panel holds, at a whole number of device pixels, and the pictures
// of the front page show the telephone as it is. UPDATE_PICTURES=1 renews those.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { copyFileSync, existsSync, mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import os from "node:os";
import path from "node:path";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { BUILD, LIMIT, Phone, program, SUITE_LIMIT, until } from "./support/phone.js";
import { darkOrLight, levelsOf } from "./support/pictures.js";

const PICTURES = path.resolve("../../docs/pictures");
const OUTPUT = path.join(BUILD, "browser");

const CONTACTS = { way: ["ok", "down", "ok"], expected: "Zoë Ångström, home" };
const HOME = { way: [], expected: "Line 1" };

const SHOTS = [
  { name: "phone", variant: "plain", size: [240, 128], viewport: { width: 1280, height: 720 }, zoom: 1, ...HOME },
  { name: "plain", variant: "plain", size: [240, 128], viewport: { width: 800, height: 688 }, zoom: 0.5, ...CONTACTS },
  { name: "narrow", variant: "narrow", size: [168, 128], viewport: { width: 800, height: 688 }, zoom: 0.5, ...HOME },
  { name: "wp1", variant: "wp1", size: [208, 42], viewport: { width: 802, height: 688 }, zoom: 0.5, ...CONTACTS },
];

/** The panel as the script runner sees it after the same keys. */
async function panelByScript(browser, shot) {
  const folder = mkdtempSync(path.join(os.tmpdir(), "displayapi-"));
  const lines = ["expect Line 1", ...shot.way.map((key) => `key ${key}`), `expect ${shot.expected}`, "wait 50",
                 "screenshot panel.png"];
  writeFileSync(path.join(folder, "it.script"), lines.join("\n"));
  try {
    execFileSync(program("phone"), ["--variant", shot.variant, "--script", "it.script", program("deskphone")],
                 { cwd: folder, timeout: 60_000, stdio: "pipe" });
    return levelsOf(readFileSync(path.join(folder, "panel.png")));
  } finally {
    rmSync(folder, { recursive: true });
  }
}

describe("the panels", SUITE_LIMIT, () => {
  let browser;

  before(async () => (browser = await openBrowser()));
  after(() => browser.close());

  for (const shot of SHOTS) {
    test(`${shot.name} looks as it should`, LIMIT, async (t) => {
      // On the virtual clock it is the same time here as in the script, and the ticker stands still.
      const port = process.env.UPDATE_PICTURES ? 8080 : undefined; // the telephone shows it
      const phone = await Phone.start({ variant: shot.variant, clock: "virtual", port });
      t.after(() => phone.stop());
      const tab = await Tab.open(browser, phone.url, { viewport: shot.viewport, deviceScaleFactor: shot.zoom });
      t.after(() => tab.close());
      await tab.shows("Line 1");
      for (const key of shot.way) await tab.button(key).click();
      await tab.shows(shot.expected);

      const expected = await panelByScript(browser, shot);
      assert.deepEqual([expected.width, expected.height], shot.size);
      await until(async () => (await tab.levels()) === expected.levels, "the canvas shows the panel's pixels");

      const canvas = await tab.page.locator("#panel").boundingBox();
      const frame = await tab.page.locator(".phone").boundingBox();
      const scale = (canvas.width * shot.zoom) / expected.width;
      assert.ok(Number.isInteger(scale) && scale >= 1, `a panel pixel is ${scale} device pixels wide`);
      assert.equal((canvas.height * shot.zoom) / expected.height, scale);
      assert.ok(frame.x >= 0 && frame.y >= 0, "the telephone fits the window");
      assert.ok(frame.width <= shot.viewport.width && frame.height <= shot.viewport.height, "the telephone fits");

      mkdirSync(OUTPUT, { recursive: true });
      const file = path.join(OUTPUT, `${shot.name}.png`);
      const margin = Math.floor(Math.min(8, frame.x, frame.y));
      const toDevice = (position) => Math.floor(position * shot.zoom) / shot.zoom; // the clip begins at a whole pixel
      const clip = { x: toDevice(frame.x - margin), y: toDevice(frame.y - margin),
                     width: Math.ceil(frame.width) + 2 * margin, height: Math.ceil(frame.height) + 2 * margin };
      await tab.page.screenshot({ path: file, clip });

      const reference = path.join(PICTURES, `${shot.name}.png`);
      if (process.env.UPDATE_PICTURES) {
        mkdirSync(PICTURES, { recursive: true });
        copyFileSync(file, reference);
      }
      assert.ok(existsSync(reference), `${reference} is missing; UPDATE_PICTURES=1 makes it`);
      const inPicture = (distance) => Math.round(distance * shot.zoom); // the browser puts a canvas at a whole pixel
      const area = { x: inPicture(canvas.x - clip.x), y: inPicture(canvas.y - clip.y), scale, width: expected.width,
                     height: expected.height };
      const wanted = expected.levels.replace(/[12]/g, "?");
      for (const picture of [file, reference]) {
        const found = darkOrLight(readFileSync(picture), area);
        const differing = [...wanted].filter((level, i) => level !== "?" && level !== found[i]).length;
        assert.equal(differing, 0, `${differing} pixels of the panel differ in ${picture}`);
      }
    });
  }
});
