// Prints what the Signal K parser makes of a file of sentences, a line each:
//
//     $ECAPB,... steering.autopilot.target.headingMagnetic 1.7453292523928399
//     $ECAPB,... nothing
//     $ECAPB,... Error: Sentence is invalid
//
// A sentence has a line for each of its values, as JSON; angles in radians, speeds in m/s.
// Usage: node Parse.js FILE, with NODE_PATH on a folder in which the parser is installed.
'use strict'
const fs = require('fs')
const Parser = require('@signalk/nmea0183-signalk')

const parser = new (Parser.default || Parser)({ validateChecksum: true })

function told(sentence) {
  try {
    const delta = parser.parse(sentence)
    const values = delta ? delta.updates.flatMap((update) => update.values) : []
    return values.length === 0 ? ['nothing'] : values.map((one) => `${one.path} ${JSON.stringify(one.value)}`)
  } catch (error) {
    return [String(error).split('\n')[0]]
  }
}

for (const line of fs.readFileSync(process.argv[2], 'latin1').split(/[\r\n]+/)) {
  if (line !== '') {
    for (const value of told(line)) {
      console.log(`${line} ${value}`)
    }
  }
}
