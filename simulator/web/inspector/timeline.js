/* ---- The timeline: a lane for the GUI thread and one for each thread that calls. ---- */

class Timeline {
  static LANE = 28;
  static AXIS = 22;
  static FOLLOWED = 10e9; // nanoseconds
  static SHORTEST = 1e3;
  static ZOOM = 1.25;

  /* `changed` hears that another part of the time is shown, and `chosen` of a request that is pointed at, or null. */
  constructor(canvas, records, changed, chosen) {
    this.canvas = canvas;
    this.pen = canvas.getContext("2d");
    this.records = records;
    this.changed = changed;
    this.chosen = chosen;
    this.view = { from: 0, to: Timeline.FOLLOWED };
    this.follows = true;
    new ResizeObserver(() => this.draw()).observe(canvas.parentElement);
    for (const query of ["(prefers-color-scheme: dark)", "(forced-colors: active)", "(prefers-contrast: more)"])
      matchMedia(query).addEventListener("change", () => this.draw());
    canvas.addEventListener("wheel", (event) => this.wheel(event), { passive: false });
    canvas.addEventListener("pointerdown", (event) => this.grab(event));
    canvas.addEventListener("pointermove", (event) => this.move(event));
    canvas.addEventListener("pointerup", () => (this.grabbed = null));
    canvas.addEventListener("pointercancel", () => (this.grabbed = null));
    canvas.addEventListener("keydown", (event) => this.key(event));
  }

  /* There are others, or they have gone on. */
  update() {
    this.lanes = this.lanesOf(this.records.all);
    if (this.follows) this.showEnd();
    this.draw();
  }

  lanesOf(all) {
    const lanes = new Map([["gui", { name: "GUI thread" }]]);
    for (const record of all)
      if (!lanes.has(record.thread)) lanes.set(record.thread, { name: threadOf(record) });
    [...lanes.values()].forEach((lane, index) => (lane.top = index * Timeline.LANE));
    return lanes;
  }

  setFollows(follows) {
    this.follows = follows;
    byId("follow").setAttribute("aria-pressed", follows);
    if (follows) this.showEnd();
    this.shown();
  }

  showEnd() {
    const { from, to } = this.records;
    const begin = Math.max(from, to - Timeline.FOLLOWED);
    this.setView(begin, to);
  }

  setView(from, to) {
    const margin = Math.max(Timeline.SHORTEST / 2, 0.02 * (to - from));
    this.view = { from: from - margin, to: to + margin };
  }

  showAll() {
    this.setView(this.records.from, this.records.to);
    this.setFollows(false);
  }

  shown() {
    this.draw();
    this.changed(this.view);
  }

  get gutter() {
    return Math.min(150, this.width / 3);
  }

  xOf(time) {
    const { from, to } = this.view;
    return this.gutter + (time - from) / (to - from) * (this.width - this.gutter);
  }

  timeAt(x) {
    const { from, to } = this.view;
    return from + (x - this.gutter) / (this.width - this.gutter) * (to - from);
  }

  zoom(factor, time = (this.view.from + this.view.to) / 2) {
    const { from, to } = this.view;
    if ((to - from) * factor < Timeline.SHORTEST) return;
    this.view = { from: time - (time - from) * factor, to: time + (to - time) * factor };
    this.setFollows(false);
  }

  pan(nanoseconds) {
    this.view = { from: this.view.from + nanoseconds, to: this.view.to + nanoseconds };
    this.setFollows(false);
  }

  wheel(event) {
    if (this.records.all.length === 0) return;
    event.preventDefault();
    this.zoom(event.deltaY > 0 ? Timeline.ZOOM : 1 / Timeline.ZOOM, this.timeAt(event.offsetX));
  }

  grab(event) {
    this.grabbed = event.offsetX;
    this.canvas.setPointerCapture(event.pointerId);
  }

  move(event) {
    if (typeof this.grabbed === "number") {
      if (event.offsetX === this.grabbed) return;
      this.pan(this.timeAt(this.grabbed) - this.timeAt(event.offsetX));
      this.grabbed = event.offsetX;
    } else {
      this.choose(this.recordAt(event.offsetX, event.offsetY));
    }
  }

  choose(record) {
    if (record === this.choice) return;
    this.choice = record;
    this.chosen(record);
    this.draw();
  }

  key(event) {
    const { from, to } = this.view;
    const actions = {
      "+": () => this.zoom(1 / Timeline.ZOOM), "=": () => this.zoom(1 / Timeline.ZOOM),
      "-": () => this.zoom(Timeline.ZOOM),
      ArrowLeft: () => this.pan((from - to) / 8), ArrowRight: () => this.pan((to - from) / 8),
      ArrowUp: () => this.step(-1), ArrowDown: () => this.step(1),
      Home: () => this.showAll(), End: () => this.setFollows(true),
    };
    if (!actions[event.key] || event.ctrlKey || event.metaKey || event.altKey) return;
    event.preventDefault();
    actions[event.key]();
  }

  step(step) {
    const { all } = this.records;
    if (all.length === 0) return;
    const at = all.indexOf(this.choice);
    const next = all[at < 0 ? all.length - 1 : Math.max(0, Math.min(all.length - 1, at + step))];
    this.choose(next);
    const { from, to } = this.view;
    if (next.queued < from || endOf(next) > to) this.pan(next.queued - (from + to) / 2);
  }

  /* The bars of a request: in its thread's lane until it has its turn, and in the GUI thread's while it is carried out. */
  barsOf(record) {
    const { queued, run, done, purgedBy, waits, thread } = record;
    const now = this.records.to;
    const bars = [{ lane: thread, from: queued, to: run ?? done ?? now, paint: purgedBy ? "purged" : "queued", isThin: !waits }];
    if (run === null) return bars;
    if (waits) bars.push({ lane: thread, from: run, to: done ?? now, paint: "ran" });
    bars.push({ lane: "gui", from: run, to: done ?? now, paint: "ran" });
    return bars;
  }

  recordAt(x, y) {
    let [nearest, least] = [null, 5];
    for (const record of this.records.all)
      for (const { lane, from, to } of this.barsOf(record)) {
        const { top } = this.lanes.get(lane);
        if (y < top || y >= top + Timeline.LANE) continue;
        const distance = Math.max(this.xOf(from) - x, x - this.xOf(to), 0);
        if (distance < least) [nearest, least] = [record, distance];
      }
    return nearest;
  }

  draw() {
    this.lanes ??= this.lanesOf([]);
    this.resize();
    const colours = this.colours();
    this.pen.clearRect(0, 0, this.width, this.height);
    this.drawLanes(colours);
    if (this.records.all.length > 0) this.drawAxis(colours);
    const { from, to } = this.view;
    for (const record of this.records.all)
      if (endOf(record) >= from && record.queued <= to) this.drawRecord(record, colours);
    if (this.choice) this.drawRecord(this.choice, { ...colours, queued: colours.marked, ran: colours.marked, purged: colours.marked });
  }

  resize() {
    const ratio = devicePixelRatio;
    this.width = this.canvas.clientWidth;
    this.height = this.lanes.size * Timeline.LANE + Timeline.AXIS;
    const [width, height] = [Math.round(this.width * ratio), Math.round(this.height * ratio)];
    if (this.canvas.width !== width || this.canvas.height !== height) {
      Object.assign(this.canvas, { width, height });
      this.canvas.style.height = `${this.height}px`;
    }
    this.pen.setTransform(ratio, 0, 0, ratio, 0, 0);
    this.pen.font = `12px ${getComputedStyle(this.canvas).fontFamily}`;
    this.pen.textBaseline = "middle";
  }

  /* Of the legend, where the system's own colours have been put in as well. */
  colours() {
    const colours = { ink: getComputedStyle(this.canvas).color, marked: getComputedStyle(byId("marked-colour")).color };
    for (const swatch of document.querySelectorAll(".legend i"))
      colours[swatch.className] = getComputedStyle(swatch).backgroundColor;
    return colours;
  }

  drawLanes({ ink }) {
    const { pen } = this;
    for (const { name, top } of this.lanes.values()) {
      pen.globalAlpha = 0.25;
      pen.fillStyle = ink;
      pen.fillRect(0, top + Timeline.LANE - 1, this.width, 1);
      pen.globalAlpha = 1;
      pen.fillText(this.shortened(name), 8, top + Timeline.LANE / 2);
    }
  }

  shortened(name) {
    const room = this.gutter - 16;
    if (this.pen.measureText(name).width <= room) return name;
    let length = name.length;
    while (length > 1 && this.pen.measureText(`${name.slice(0, length)}…`).width > room) --length;
    return `${name.slice(0, length)}…`;
  }

  /* Round times, since the first request. */
  drawAxis({ ink }) {
    const { pen, view, width, gutter, height } = this;
    const wanted = (view.to - view.from) / Math.max(2, (width - gutter) / 110);
    const power = 10 ** Math.floor(Math.log10(wanted));
    const step = power * [1, 2, 5, 10].find((factor) => factor * power >= wanted);
    const zero = this.records.from;
    pen.fillStyle = ink;
    for (let n = Math.ceil((view.from - zero) / step); zero + n * step <= view.to; ++n) {
      const x = this.xOf(zero + n * step);
      pen.globalAlpha = 0.15;
      pen.fillRect(x, 0, 1, height - Timeline.AXIS);
      pen.globalAlpha = 1;
      const text = n === 0 ? "0" : `${n < 0 ? "−" : ""}${this.label(Math.abs(n * step), step)}`;
      if (x + 4 + pen.measureText(text).width <= width) pen.fillText(text, x + 3, height - Timeline.AXIS / 2);
    }
  }

  label(time, step) {
    const [size, unit] = [[1e9, "s"], [1e6, "ms"], [1e3, "µs"]].find(([size]) => time >= size) ?? [1, "ns"];
    const digits = Math.max(0, Math.min(6, Math.ceil(Math.log10(size / step) - 1e-9)));
    return `${(time / size).toFixed(digits)} ${unit}`;
  }

  drawRecord(record, colours) {
    for (const { lane, from, to, paint, isThin } of this.barsOf(record)) {
      const begin = Math.max(this.gutter, this.xOf(from));
      const end = Math.min(this.width, this.xOf(to));
      if (end < this.gutter || begin > this.width) continue;
      this.pen.fillStyle = colours[paint];
      const height = isThin ? 6 : 16;
      this.pen.fillRect(begin, this.lanes.get(lane).top + (Timeline.LANE - height) / 2, Math.max(2, end - begin), height);
    }
  }
}
