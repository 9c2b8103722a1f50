#!/usr/bin/env python3
"""Makes a first bitmap table from what the gauges declare.

usage: make-table.py DUMP SOURCE_DIR > bitmaps.tsv
DUMP is the output of bmpdump; captions come from the element comments of the
gauge sources. Refinements (warning-light legends and colours, attitude
spheres) live below, so the table can be remade whenever declarations change.
"""
import math, os, re, sys

dump, src = sys.argv[1], sys.argv[2]
gauges, elems, boxes, strings = {}, [], {}, {}
for line in open(dump):
    f = line.rstrip('\n').split('\t')
    if f[0] == 'G':
        gauges[int(f[1])] = (f[2].replace('kestrane ', ''), int(f[3]))
    elif f[0] == 'E':
        elems.append(f[1:])
    elif f[0] == 'M':
        boxes.setdefault(int(f[1]), []).append(tuple(map(int, f[2:6])))
    elif f[0] == 'S':
        strings.setdefault(int(f[1]), []).append(tuple(map(int, f[3:7])))

captions = {}
pat = re.compile(r'\b(\d+)\b.*//\s*e[\d.]+\s*(.*)$')
# our own artwork is numbered by art(): elec_a::art(gauge, n), ap::art(n)
art_pat = re.compile(r'\bart\((\d+)\s*,\s*(\d+)\)|\bart\((\d+)\).*//\s*e[\d.]+\s*(.*)$')
art_cap = re.compile(r'//\s*e[\d.]+\s*(.*)$')
for root, _, files in os.walk(src):
    for name in sorted(files):
        if not name.endswith(('.cpp', '.h')):
            continue
        pending = None  # a bitmap whose declaration goes on to the next line
        for line in open(os.path.join(root, name)):
            a, c = art_pat.search(line), art_cap.search(line)
            if pending and c and not re.search(r'\(\s*\d{3,5}\s*,', line):
                captions.setdefault(pending, c.group(1).strip().replace('\t', ' '))
                pending = None
                continue
            d = re.search(r'\b(?:icon|needle|sprite|moving|slider|image)\(\s*(\d{3,5})\s*,', line)
            pending = d.group(1) if d and not c else None
            if a and c:
                bid = 26000 + 16 * (int(a.group(1)) * 8 + int(a.group(2))) if a.group(1) else 44000 + 16 * int(a.group(3))
                captions.setdefault(str(bid), c.group(1).strip().replace('\t', ' '))
                continue
            m = pat.search(line)
            if m and m.group(1) not in captions:
                captions[m.group(1)] = m.group(2).strip().replace('\t', ' ')

def colour(c):
    c = c.lower()
    for word, col in (('fire', 'red'), ('warn', 'red'), ('alarm', 'red'), ('red', 'red'),
                      ('fail', 'red'), ('amber', 'amber'), ('caution', 'amber'), ('low', 'amber'),
                      ('green', 'green'), ('blue', 'blue'), ('yellow', 'amber')):
        if word in c:
            return col
    return 'white'

def icon_role(c):
    c = c.lower()
    if 'night' in c:
        return 'night'
    if re.search(r'\bflag\b', c):
        return 'flag'
    if re.search(r'\bknob\b', c):
        return 'knob'
    if any(w in c for w in ('light', 'lamp', 'warn', 'caution', 'fire', 'alarm', 'lit', 'flag')):
        return 'lamp'
    if any(w in c for w in ('press', 'push', 'button', 'test', 'knob')):
        return 'button'
    if any(w in c for w in ('guard', 'switch', 'sw ', 'lever', 'on', 'off', 'up', 'down', 'pos',
                            'open', 'shut', 'closed', 'left', 'right', 'centre', 'center')):
        return 'switch'
    return 'image'

# Warning lights: the gauge's image is the light, with its legend and colour.
WARNINGS = {
    'warn_stall_jm47': ('STALL', 'red'), 'warn_servo_jm47': ('SERVO', 'red'),
    'warn_hydlvl_jm47': ('HYD LEVEL', 'amber'), 'warn_fuellevel_jm47': ('FUEL LEVEL', 'amber'),
    'warn_lhoilpress_jm47': ('L OIL PRESS', 'red'), 'warn_rhoilpress_jm47': ('R OIL PRESS', 'red'),
    'warn_lhengfire_jm47': ('L ENG FIRE', 'red'), 'warn_rhengfire_jm47': ('R ENG FIRE', 'red'),
    'warn_lhfuelpress_jm47': ('L FUEL PRESS', 'amber'), 'warn_rhfuelpress_jm47': ('R FUEL PRESS', 'amber'),
    'warn_lhfueltemp_jm47': ('L FUEL TEMP', 'amber'), 'warn_rhfueltemp_jm47': ('R FUEL TEMP', 'amber'),
    'warn_ice_jm47': ('ICE', 'amber'), 'warn_cabinexcalt_jm47': ('CABIN ALT', 'red'),
    'warn_elec_jm47': ('ELEC', 'amber'),
}
SPHERES = ('fdadi_jm47', 'horiz_sec_jm47', 'fdadimini_jm47')
# The overview map: what each region and button opens, written on it.
OVERVIEW_LABELS = {
    (428, 71, 111, 200): 'ELEC', (349, 71, 79, 105): 'HYD SERVO', (353, 271, 94, 59): 'HYD SERVO',
    (214, 361, 93, 36): 'HYD SERVO', (208, 251, 45, 79): 'PED', (253, 294, 33, 36): 'PED',
    (286, 251, 21, 79): 'PED', (253, 251, 33, 43): 'PED', (307, 251, 46, 79): 'FUEL',
    (100, 251, 108, 79): 'TADG BATT', (184, 129, 165, 47): 'UPPER 2', (184, 71, 165, 58): 'UPPER 3',
    (286, 220, 67, 31): 'GEAR', (162, 397, 55, 53): 'CLOCK', (217, 397, 55, 53): 'COMPASS',
    (272, 397, 55, 53): 'FAIL', (327, 397, 55, 53): 'GPS', (0, 0, 52, 53): 'CLOSE',
}

rows, seen = [], set()
dials = {}  # gauge -> needle marks
for e in elems:
    gi, label, kind, bid, x, y, rx, ry, extra = int(e[0]), e[1], int(e[2]), e[3], int(e[4]), int(e[5]), int(e[6]), int(e[7]), e[8] if len(e) > 8 else ''
    if kind == 1 and extra:
        dials.setdefault(gi, []).append((x, y, extra))

for e in elems:
    gi, label, kind, bid = int(e[0]), e[1], int(e[2]), e[3]
    x, y, rx, ry = int(e[4]), int(e[5]), int(e[6]), int(e[7])
    extra = e[8] if len(e) > 8 else ''
    if bid in seen:
        continue
    seen.add(bid)
    gname, gw = gauges[gi]
    cap = captions.get(bid, '')
    gb = boxes.get(gi, [])
    params = ''
    if label == '0' and kind == 0:
        w, h = gw, 0
        for bx, by, bw, bh in gb:
            w, h = max(w, bx + bw), max(h, by + bh)
        for sx, sy, sw, sh in strings.get(gi, []):
            w, h = max(w, sx + sw), max(h, sy + sh)
        for o in elems:
            if int(o[0]) == gi and o[1] != '0':
                w, h = max(w, int(o[4]) + 8), max(h, int(o[5]) + 8)
                if int(o[2]) == 6 and int(o[4]) > 0:
                    # a sphere or card turns about its place: room for all of it
                    w, h = max(w, int(o[4]) + int(o[6])), max(h, int(o[5]) + int(o[7]))
        if gi in dials:
            # the whole face of every scale, within reason
            for px, py, ex in dials[gi]:
                pts = [tuple(map(float, p.split(',')[:2])) for p in ex.split()]
                r = max(math.hypot(qx - px, qy - py) for qx, qy in pts)
                if r < gw:
                    h = max(h, int(py + r + 8))
            role = 'dial'
            params = ';'.join('%d,%d:%s' % (px, py, ex) for px, py, ex in dials[gi])
        else:
            role = 'panel'
            labels = OVERVIEW_LABELS if gname == 'panel_overview' else {}
            params = ' '.join('%d,%d,%d,%d' % b + (',' + labels[b].replace(' ', '_') if b in labels else '')
                              for b in gb)
        if 'night' in cap.lower():
            role += '-night'
        h = max(h, 16)
        if cap == 'click area':
            role = 'area'
        if not cap or cap.startswith('background') or cap in ('click area', 'dial', 'released'):
            cap = gname.replace('_jm47', '').replace('_', ' ').upper()
    elif kind == 1:
        pts = [tuple(map(float, p.split(','))) for p in extra.split()] if extra else []
        L = min(max([math.hypot(px - x, py - y) for px, py, _ in pts] or [gw * 0.4]), gw * 0.45)
        w, h = rx + int(L), max(2 * ry + 1, 5)
        role, params = 'needle', '%d,%d' % (rx, ry)
    elif kind == 5:
        mn = [float(v) for v in extra.split(',')] if extra else [0, 0, 0, 0]
        span = int(max(mn[1] - mn[0], mn[3] - mn[2]))
        role = 'drum' if mn[3] - mn[2] >= mn[1] - mn[0] else 'drum-h'
        w, h = (14, span + 22) if role == 'drum' else (span + 16, 20)
        c = cap.lower()
        if role == 'drum' and 0 < span <= 60 and not re.search(r'bar|pointer|deviation|trim|lever|handle', c):
            # a digit drum: one digit every 20 pixels, the window 20 high,
            # so that the strip scrolls a whole digit for each unit of value
            h = span * 20 + 20
        if 'lever' in c and span >= 40:
            # a part carried along its travel, not a strip behind a window:
            # the bitmap is the part alone, shorter than the travel
            role = 'lever'
            w, h = (45, 18) if 'knob' in c else (22, 10) if 'reverse' in c else (14, 40)
        params = extra
    elif kind == 6:
        c = cap.lower()
        role = 'sphere' if any(k in c for k in ('att', 'horiz', 'sphere', 'ball', 'pitch')) else 'card'
        w = h = max(64, 2 * rx, 2 * ry)
        tc = [int(v) for v in extra.split(',')] if extra else []
        if re.search(r'\bbar\b', c) and len(tc) == 2:
            # turns about its middle: the texture centre gives its size
            role, w, h = 'bar', max(2, 2 * tc[0]), max(8, 2 * tc[1])
        params = '%d,%d' % (rx, ry)
    else:
        role = icon_role(cap) if kind in (0, 4) else 'pointer'
        w = h = 0
        for bx, by, bw, bh in gb:
            if bx <= x + 2 and by <= y + 2 and x < bx + bw and y < by + bh:
                if w == 0 or bw * bh < w * h:
                    w, h = bx + bw - x, by + bh - y
        if w == 0:
            w, h = 24, 20
        w, h = max(8, min(w, max(8, gw - x))), max(8, h)
    if role == 'image' and cap in ('dial cover', 'overlay', 'fixed image', 'always shown', 'always hidden'):
        role = 'overlay'  # glass and fixtures over the face: nothing of their own to draw
    if gname in WARNINGS and role in ('panel', 'image'):
        cap, role = WARNINGS[gname][0], 'lamp'
    if gname in SPHERES and role == 'card':
        role = 'sphere'
    if role in ('sphere', 'card') and 'bank scale' in cap.lower():
        role = 'bank-scale'  # marks on a ring, turning over the sphere
    rows.append((int(bid), gname, w, h, role, cap or role, (WARNINGS[gname][1] if gname in WARNINGS else colour(cap + ' ' + gname)) if role in ('lamp', 'button') else '-', params or '-'))

print('# id\tgauge\twidth\theight\trole\tcaption\tcolour\tparams')
for r in sorted(rows):
    print('\t'.join(map(str, r)))
