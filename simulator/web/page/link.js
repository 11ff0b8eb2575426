/* ---- The connection: opens the socket, and opens it again when it breaks. ---- */

class Link {
  static FIRST_PAUSE = 250;
  static LONGEST_PAUSE = 3000;

  /* `handlers` has opened(), closed(), frame(data), which returns the frame's number, and one for each member that a
     message can have. */
  constructor(handlers) {
    this.handlers = handlers;
    this.pause = Link.FIRST_PAUSE;
    this.open();
  }

  open() {
    this.socket = new WebSocket(`ws://${location.host}/socket${location.search}`);
    this.socket.binaryType = "arraybuffer";
    this.socket.onopen = () => this.opened();
    this.socket.onmessage = (event) => this.received(event.data);
    this.socket.onclose = () => this.closed();
  }

  send(text) {
    if (this.socket.readyState === WebSocket.OPEN) this.socket.send(text);
  }

  opened() {
    this.pause = Link.FIRST_PAUSE;
    this.handlers.opened();
  }

  received(data) {
    if (data instanceof ArrayBuffer) {
      this.send(`seen ${this.handlers.frame(data)}`);
      return;
    }
    for (const [name, value] of Object.entries(JSON.parse(data))) this.handlers[name](value);
  }

  closed() {
    this.handlers.closed();
    setTimeout(() => this.open(), this.pause);
    this.pause = Math.min(2 * this.pause, Link.LONGEST_PAUSE);
  }
}
