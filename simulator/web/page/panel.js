/* ---- The panel ---- */

/* The levels of the panel as opacity of its ink: the bare panel shows the glass behind it. */
const OPACITIES = [0, 92, 168, 238];
const GREYS = [255, 170, 85, 0];

const littleEndian = (bytes) => new Uint32Array(Uint8Array.from(bytes).buffer);

class Panel {
  constructor(resized) {
    this.resized = resized;
    this.pen = canvas.getContext("2d");
    this.levels = new Uint8Array(canvas.width * canvas.height);
    for (const query of ["(forced-colors: active)", "(prefers-contrast: more)", "(prefers-color-scheme: dark)"])
      matchMedia(query).addEventListener("change", () => this.paint());
  }

  /* Returns the frame's number. How a frame is packed is told in FrameMessage.h. */
  draw(data) {
    const header = new DataView(data, 0, 8);
    this.resize(header.getUint16(0, true), header.getUint16(2, true));
    this.unpack(new Uint8Array(data, 8));
    this.paint();
    return header.getUint32(4, true);
  }

  resize(width, height) {
    if (canvas.width === width && canvas.height === height) return;
    canvas.width = width;
    canvas.height = height;
    this.levels = new Uint8Array(width * height);
    root.style.setProperty("--panel-width", width);
    root.style.setProperty("--panel-height", height);
    this.resized();
  }

  unpack(packed) {
    const stride = Math.ceil(canvas.width / 4);
    for (let y = 0, to = 0; y < canvas.height; ++y)
      for (let x = 0; x < canvas.width; ++x)
        this.levels[to++] = packed[y * stride + (x >> 2)] >> (6 - 2 * (x & 3)) & 3;
  }

  paint() {
    const ink = getComputedStyle(canvas).color.match(/\d+/g).slice(0, 3);
    this.pen.putImageData(this.image(OPACITIES.flatMap((opacity) => [...ink, opacity])), 0, 0);
  }

  image(colours) {
    const words = littleEndian(colours);
    const image = this.pen.createImageData(canvas.width, canvas.height);
    const pixels = new Uint32Array(image.data.buffer);
    this.levels.forEach((level, index) => (pixels[index] = words[level]));
    return image;
  }

  /* Black on white, each pixel `scale` pixels wide and high. */
  async png(scale) {
    const small = new OffscreenCanvas(canvas.width, canvas.height);
    small.getContext("2d").putImageData(this.image(GREYS.flatMap((grey) => [grey, grey, grey, 255])), 0, 0);
    const large = new OffscreenCanvas(scale * canvas.width, scale * canvas.height);
    const pen = large.getContext("2d");
    pen.imageSmoothingEnabled = false;
    pen.drawImage(small, 0, 0, large.width, large.height);
    return large.convertToBlob({ type: "image/png" });
  }
}
