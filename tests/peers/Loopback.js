// Loaded before the server: whatever it listens on without an address is on the loopback address.
'use strict'
const dgram = require('dgram')
const net = require('net')

const kHere = '127.0.0.1'

const listen = net.Server.prototype.listen
net.Server.prototype.listen = function (port, ...rest) {
  return typeof port === 'number' || typeof port === 'string'
    ? listen.call(this, Number(port), kHere, ...rest.filter((one) => typeof one === 'function'))
    : listen.call(this, port, ...rest)
}

const bind = dgram.Socket.prototype.bind
dgram.Socket.prototype.bind = function (port, ...rest) {
  return typeof port === 'number'
    ? bind.call(this, port, kHere, ...rest.filter((one) => typeof one === 'function'))
    : bind.call(this, port, ...rest)
}
