// The extract of coasts and borders: prepare_land.mjs <countries-10m.json> <target file>
//
// Takes the coast lines and country borders of the hemisphere around 15 degrees east out of the
// TopoJSON form of Natural Earth (public domain) and writes them thinned and as small numbers.
// Made once with Node 18 or later and no module; needed again only when the extract is to change.
import { readFileSync, writeFileSync } from 'node:fs';

const [source, target] = process.argv.slice(2);
const topology = JSON.parse(readFileSync(source, 'utf8'));
const { scale, translate } = topology.transform;

const CENTRE = 15; // degrees east, the middle of the map zone
const HALF = 90; // degrees of longitude either side
const SOUTH = -6;

const decoded = topology.arcs.map((arc) => {
  let x = 0, y = 0;
  return arc.map(([dx, dy]) => {
    x += dx; y += dy;
    return [x * scale[0] + translate[0], y * scale[1] + translate[1]];
  });
});

// Kilometres of a spherical transverse Mercator, near enough to tell the zones of detail apart.
function project([lon, lat]) {
  const limited = Math.max(-89, Math.min(89, lon - CENTRE));
  const l = limited * Math.PI / 180, p = lat * Math.PI / 180;
  return [6371 * Math.atanh(Math.cos(p) * Math.sin(l)), 6371 * Math.atan2(Math.tan(p), Math.cos(l))];
}

// Detail in kilometres and the smallest island kept in square kilometres.
function detail(point) {
  const [x, y] = project(point);
  if (y > 5400 && y < 7700 && x > -1650 && x < 1650) return { tolerance: 0.13, island: 0.25 };
  if (y > 2900 && y < 9100 && x > -3600 && x < 4600) return { tolerance: 0.8, island: 4 };
  return { tolerance: 5, island: 150 };
}

function inReach([lon, lat]) {
  return Math.abs(lon - CENTRE) <= HALF && lat >= SOUTH;
}

function distanceKm(p, a, b) {
  const k = Math.cos(p[1] * Math.PI / 180) * 111.2;
  const to = (q) => [(q[0] - a[0]) * k, (q[1] - a[1]) * 111.2];
  const [px, py] = to(p), [bx, by] = to(b);
  const length2 = bx * bx + by * by;
  const along = length2 > 0 ? Math.max(0, Math.min(1, (px * bx + py * by) / length2)) : 0;
  return Math.hypot(px - along * bx, py - along * by);
}

// Keeps the points that stand off the straight line by more than the detail of their place.
function thin(points) {
  const keep = new Uint8Array(points.length);
  keep[0] = keep[points.length - 1] = 1;
  const open = [[0, points.length - 1]];
  while (open.length) {
    const [from, to] = open.pop();
    let worst = 1, at = -1;
    for (let i = from + 1; i < to; i++) {
      const tolerance = inReach(points[i]) ? detail(points[i]).tolerance : 60;
      const ratio = distanceKm(points[i], points[from], points[to]) / tolerance;
      if (ratio > worst) { worst = ratio; at = i; }
    }
    if (at < 0) continue;
    keep[at] = 1;
    open.push([from, at], [at, to]);
  }
  return points.filter((_, i) => keep[i]);
}

const rounded = (points) => {
  const result = [];
  for (const [lon, lat] of points) {
    const q = [Math.round(lon * 1000), Math.round(lat * 1000)];
    const last = result[result.length - 1];
    if (!last || last[0] !== q[0] || last[1] !== q[1]) result.push(q);
  }
  return result;
};

const ringPoints = (ring) => ring.flatMap((ref) => ref < 0 ? decoded[~ref].slice().reverse() : decoded[ref]);

function areaKm2(points) {
  let sum = 0;
  for (let i = 0, j = points.length - 1; i < points.length; j = i++) {
    const k = Math.cos((points[i][1] + points[j][1]) / 2 * Math.PI / 180);
    sum += (points[j][0] - points[i][0]) * k * (points[j][1] + points[i][1]) / 2;
  }
  return Math.abs(sum) * 111.2 * 111.2;
}

function ringsOf(geometry) {
  if (geometry.type === 'Polygon') return geometry.arcs;
  if (geometry.type === 'MultiPolygon') return geometry.arcs.flat();
  return (geometry.geometries ?? []).flatMap(ringsOf);
}

const landRings = ringsOf(topology.objects.land).filter((ring) => {
  const points = ringPoints(ring);
  if (!points.some(inReach)) return false;
  return areaKm2(points) >= detail(points[0]).island;
});

// An arc that two countries share is a border.
const uses = new Map();
for (const country of topology.objects.countries.geometries) {
  if (country.properties.name === 'Baikonur') continue; // leased ground, no country
  for (const ref of ringsOf(country).flat()) {
    const arc = ref < 0 ? ~ref : ref;
    uses.set(arc, (uses.get(arc) ?? 0) + 1);
  }
}
const borders = [...uses].filter(([arc, n]) => n > 1 && decoded[arc].some(inReach)).map(([arc]) => arc);

const number = new Map();
const lines = [];
function arcLine(arc) {
  if (number.has(arc)) return;
  number.set(arc, number.size + 1);
  const points = rounded(thin(decoded[arc]));
  let [x, y] = [0, 0];
  const words = points.map((p) => {
    const word = `${p[0] - x} ${p[1] - y}`;
    [x, y] = p;
    return word;
  });
  lines.push(`a ${words.join(' ')}`);
}
landRings.flat().forEach((ref) => arcLine(ref < 0 ? ~ref : ref));
borders.sort((a, b) => a - b).forEach(arcLine);
for (const ring of landRings) {
  lines.push(`r ${ring.map((ref) => ref < 0 ? -number.get(~ref) : number.get(ref)).join(' ')}`);
}
lines.push(`b ${borders.map((arc) => number.get(arc)).join(' ')}`);

const head = [
  '# Coasts and borders around Europe, taken from Natural Earth 1:10m (public domain).',
  '# a: an arc, thousandths of a degree, east then north, each pair added to the one before',
  '# r: a ring of land of numbered arcs (the first is 1), negative ones run backwards',
  '# b: the arcs that are country borders',
];
writeFileSync(target, [...head, ...lines, ''].join('\n'));
