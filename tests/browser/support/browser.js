// A browser with tabs on a telephone's page.

import { chromium } from "playwright-core";
import { PATIENCE, until } from "./phone.js";

const ARGUMENTS = [
  "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
  "--disable-component-update", "--disable-sync",
];

export const openBrowser = () =>
  chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: ARGUMENTS, timeout: 60_000 });

/** A tab, and what the tests want to know of it. */
export class Tab {
  /** `connects: false` is for a page that has something else to say. */
  static async open(browser, url, { connects = true, ...options } = {}) {
    const tab = new Tab();
    tab.context = await browser.newContext({ viewport: { width: 1280, height: 720 }, ...options });
    tab.context.setDefaultTimeout(PATIENCE);
    tab.page = await tab.context.newPage();
    tab.requests = [];
    tab.errors = [];
    tab.page.on("request", (request) => tab.requests.push(request.url()));
    tab.page.on("pageerror", (error) => tab.errors.push(String(error)));
    await tab.page.goto(url);
    if (connects) await tab.isConnected();
    return tab;
  }

  close() {
    return this.context.close();
  }

  state() {
    return this.page.getAttribute(".phone", "data-state");
  }

  isConnected() {
    return this.page.waitForSelector('.phone[data-state="open"]');
  }

  notice() {
    return this.page.textContent("#notice");
  }

  says(sentence) {
    return until(async () => (await this.notice()) === sentence, `the page says "${sentence}"`);
  }

  rows() {
    return this.page.locator("#rows li").allTextContents();
  }

  async selected() {
    return (await this.page.locator('#rows li[aria-current="true"]').allTextContents()).join();
  }

  selects(text) {
    return until(async () => (await this.selected()) === text, `the selected row is "${text}"`);
  }

  shows(text) {
    return until(async () => (await this.rows()).some((row) => row.includes(text)), `a row has "${text}"`);
  }

  /** What has gone stays away; a row that goes by may be gone again before a busy machine looks. */
  hides(text) {
    return until(async () => !(await this.rows()).some((row) => row.includes(text)), `no row has "${text}"`);
  }

  button(key) {
    return this.page.locator(`[data-key="${key}"]`);
  }

  /** Leaves the home screen for its menu, where another tab has not done so. */
  async openMenu() {
    const shows = async (text) => (await this.rows()).some((row) => row.includes(text));
    await until(async () => (await shows("Line 1")) || (await shows("Call log")), "the telephone is there");
    if (!(await shows("Call log"))) await this.button("ok").click();
    await this.shows("Call log");
  }

  /** The picture comes in a message of its own, before or after the rows. */
  looksOtherThan(before) {
    return until(async () => (await this.levels()) !== before, "the picture changes");
  }

  /** The canvas as the panel's levels, 0 to 3, one digit a pixel. */
  levels() {
    return this.page.evaluate(() => {
      const canvas = document.getElementById("panel");
      const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
      const opacities = [0, 92, 168, 238];
      let levels = "";
      for (let i = 3; i < data.length; i += 4) levels += opacities.indexOf(data[i]);
      return levels;
    });
  }
}
