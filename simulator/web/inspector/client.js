/* ---- The test interface: a socket on which methods are called. ---- */

class Client {
  /* Resolves when it is open; rejects where it is refused. `noted` hears notifications, `closed` the end. */
  static open(token, { noted = () => {}, closed = () => {} } = {}) {
    return new Promise((resolve, reject) => {
      const client = new Client(token);
      client.socket.onopen = () => resolve(client);
      client.socket.onmessage = (event) => client.received(JSON.parse(event.data), noted);
      client.socket.onclose = () => {
        reject(new Error("refused"));
        client.rejectAll();
        closed();
      };
    });
  }

  constructor(token) {
    this.socket = new WebSocket(`ws://${location.host}/rpc?token=${encodeURIComponent(token)}`);
    this.requests = new Map();
    this.number = 0;
  }

  get isOpen() {
    return this.socket.readyState === WebSocket.OPEN;
  }

  call(method, params) {
    if (!this.isOpen) return Promise.reject(new Error("closed"));
    const id = ++this.number;
    this.socket.send(JSON.stringify({ jsonrpc: "2.0", id, method, params }));
    return new Promise((resolve, reject) => this.requests.set(id, { resolve, reject }));
  }

  received({ id, method, error, result }, noted) {
    if (method) return noted(method);
    const request = this.requests.get(id);
    this.requests.delete(id);
    if (error) request?.reject(new Error(error.message));
    else request?.resolve(result);
  }

  rejectAll() {
    for (const { reject } of this.requests.values()) reject(new Error("closed"));
    this.requests.clear();
  }

  close() {
    this.socket.close();
  }
}
