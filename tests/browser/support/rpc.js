// A client of the test interface.

import { once } from "node:events";
import { readFileSync } from "node:fs";
import WebSocket from "ws";

export const tokenFile = (phone) => phone.output.match(/its token in (\S+)/)[1];

/** An open socket; fails where it is refused. */
export async function connect(phone, { headers = {}, origin, query = "" } = {}) {
  const socket = new WebSocket(`ws://127.0.0.1:${phone.port}/rpc${query}`, { headers, origin });
  await once(socket, "open");
  socket.on("error", () => {});
  return socket;
}

export class Client {
  static async open(phone) {
    const token = readFileSync(tokenFile(phone), "utf8").trim();
    return new Client(await connect(phone, { headers: { Authorization: `Bearer ${token}` } }));
  }

  constructor(socket) {
    this.socket = socket;
    this.notes = [];
    this.waiting = new Map();
    this.number = 0;
    socket.on("message", (data) => this.hear(JSON.parse(data)));
    socket.on("close", () => {
      for (const { reject } of this.waiting.values()) reject(new Error("the connection has been closed"));
    });
  }

  hear(message) {
    const request = this.waiting.get(message.id);
    this.waiting.delete(message.id);
    if (message.id === undefined) return this.note(message);
    if (request === undefined) return;
    if (message.error) request.reject(Object.assign(new Error(message.error.message), message.error));
    else request.resolve(message.result);
  }

  note(message) {
    this.notes.push(message);
    this.onNote?.(message);
  }

  /** Sends a request whose answer nobody wants to have. */
  send(method, params) {
    this.socket.send(JSON.stringify({ jsonrpc: "2.0", id: -1, method, params }));
  }

  call(method, params) {
    const id = ++this.number;
    this.socket.send(JSON.stringify({ jsonrpc: "2.0", id, method, params }));
    return new Promise((resolve, reject) => this.waiting.set(id, { resolve, reject }));
  }

  end() {
    this.socket.terminate();
  }
}
