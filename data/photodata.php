<?PHP
// Photo show: a page of thumbnails of the images in this folder, a large view
// with previous and next that can blend one image into the next, and the whole
// set as one zip file. Each setting stands alone on its line: the program that
// installs this page rewrites those lines.
$useFading =true; // do you want to blend between images?
$imgsperline=5;
  $imgspercolumn=3;
  $allowZip=true;
$browsertitle="Image browser";
$fadeMode  =rand(0,4);
$fadeSteps =6;
$fadeTime  =70;

// ---------------------------------------------------------------------------
// Settings as the page uses them: every value checked, every gap filled.

function tq_number($value, int $min, int $max, int $fallback): int
{
    if (is_int($value)) {
        $n = $value;
    } elseif (is_string($value) && preg_match('/^[0-9]{1,6}$/', $value)) {
        $n = (int) $value;
    } else {
        return $fallback;
    }
    return max($min, min($max, $n));
}

function tq_h(string $text): string
{
    return htmlspecialchars($text, ENT_QUOTES | ENT_SUBSTITUTE, 'UTF-8');
}

function tq_param(string $key): ?string
{
    $value = $_GET[$key] ?? null;
    return is_string($value) ? $value : null;
}

$tqFolder = __DIR__;
$tqPerLine = tq_number($imgsperline ?? 5, 1, 10, 5);
$tqPerColumn = tq_number($imgspercolumn ?? 3, 1, 8, 3);
$tqPerPage = $tqPerLine * $tqPerColumn;
$tqZip = ($allowZip ?? false) === true;
$tqFading = ($useFading ?? false) === true;
$tqMode = tq_number($fadeMode ?? 0, 0, 4, 0);
$tqSteps = tq_number($fadeSteps ?? 6, 1, 50, 6);
$tqDelay = tq_number($fadeTime ?? 70, 10, 5000, 70);
$tqTitle = is_string($browsertitle ?? null) ? $browsertitle : 'Photos';
$tqBackground = (is_string($bgcolor ?? null) && preg_match('/^#[0-9A-Fa-f]{6}$/', $bgcolor)) ? $bgcolor : '#FFFFFF';

// Text in black on a light background, in white on a dark one.
$tqRgb = array_map('hexdec', str_split(substr($tqBackground, 1), 2));
$tqInk = (0.299 * $tqRgb[0] + 0.587 * $tqRgb[1] + 0.114 * $tqRgb[2]) > 140 ? '#111111' : '#F2F2F2';

// ---------------------------------------------------------------------------
// The images: the picture files of this folder, by name. A name that is not
// UTF-8 cannot travel in a link or in the slide show's script, and a file the
// server cannot read cannot be shown: both are left out.

const TQ_TYPES = ['jpg' => 'image/jpeg', 'jpeg' => 'image/jpeg', 'png' => 'image/png', 'gif' => 'image/gif',
    'webp' => 'image/webp'];

function tq_images(string $folder): array
{
    $names = [];
    $entries = scandir($folder);
    if ($entries === false) {
        return $names;
    }
    foreach ($entries as $name) {
        if ($name === '' || $name[0] === '.') {
            continue;
        }
        $ext = strtolower(pathinfo($name, PATHINFO_EXTENSION));
        if (array_key_exists($ext, TQ_TYPES) && preg_match('//u', $name) === 1 && tq_inside($folder, $name) !== null) {
            $names[] = $name;
        }
    }
    sort($names, SORT_STRING);
    return $names;
}

// The real path of a readable file of this folder, or null for anything else:
// names with a path in them, links that lead out of the folder, folders.
function tq_inside(string $folder, string $name): ?string
{
    if ($name !== basename($name) || strpbrk($name, "/\\\0") !== false) {
        return null;
    }
    $root = realpath($folder);
    $path = realpath($folder . DIRECTORY_SEPARATOR . $name);
    if ($root === false || $path === false || !is_file($path) || !is_readable($path)) {
        return null;
    }
    if (strncmp($path, $root . DIRECTORY_SEPARATOR, strlen($root) + 1) !== 0) {
        return null;
    }
    return $path;
}

function tq_refuse(): void
{
    http_response_code(404);
    header('Content-Type: text/plain; charset=utf-8');
}

$tqImages = tq_images($tqFolder);

// ---------------------------------------------------------------------------
// One image, by name: only a name from the list above is ever served.

$tqImg = tq_param('img');
if ($tqImg !== null || isset($_GET['img'])) {
    $path = ($tqImg !== null && in_array($tqImg, $tqImages, true)) ? tq_inside($tqFolder, $tqImg) : null;
    if ($path === null) {
        tq_refuse();
        exit;
    }
    header('Content-Type: ' . TQ_TYPES[strtolower(pathinfo($path, PATHINFO_EXTENSION))]);
    header('Content-Length: ' . filesize($path));
    header('X-Content-Type-Options: nosniff');
    header('Cache-Control: max-age=3600');
    readfile($path);
    exit;
}

// ---------------------------------------------------------------------------
// All images as one zip file, when allowed. The archive is written straight to
// the visitor as it is read, nothing is stored on the server's disk, so a
// download that is broken off leaves nothing behind. The images are stored as
// they are (they are compressed already). One archive at a time per folder:
// the lock on this script is held while it streams and is let go however the
// request ends.

function tq_dos_time(int $stamp): array
{
    $t = getdate($stamp);
    $year = max(1980, min(2107, $t['year']));
    return [($t['hours'] << 11) | ($t['minutes'] << 5) | intdiv($t['seconds'], 2),
        (($year - 1980) << 9) | ($t['mon'] << 5) | $t['mday']];
}

// The archive's members: name, path, size, CRC and time of each image that can
// be read now; null when the archive would outgrow the plain zip format.
function tq_zip_members(string $folder, array $names): ?array
{
    $members = [];
    $total = 22;
    foreach ($names as $name) {
        $path = tq_inside($folder, $name);
        $size = $path === null ? false : @filesize($path);
        $crc = $size === false ? false : @hash_file('crc32b', $path);
        if ($crc === false) {
            continue;
        }
        $members[] = ['name' => $name, 'path' => $path, 'size' => $size, 'crc' => hexdec($crc),
            'time' => tq_dos_time((int) @filemtime($path))];
        $total += 30 + 46 + 2 * strlen($name) + $size;
    }
    return ($total > 0xFFFFFFFF || count($members) > 0xFFFF) ? null : $members;
}

function tq_zip_send(array $members): void
{
    $offset = 0;
    $directory = '';
    foreach ($members as $m) {
        // flag 0x0800: the names are UTF-8
        $common = pack('vvvvvVVVv', 20, 0x0800, 0, $m['time'][0], $m['time'][1], $m['crc'], $m['size'], $m['size'],
            strlen($m['name']));
        $directory .= pack('Vv', 0x02014b50, 20) . $common . pack('vvvvVV', 0, 0, 0, 0, 0, $offset) . $m['name'];
        $header = pack('V', 0x04034b50) . $common . pack('v', 0) . $m['name'];
        echo $header;
        $left = $m['size'];
        $in = @fopen($m['path'], 'rb');
        while ($in !== false && $left > 0 && !feof($in)) {
            $piece = fread($in, min($left, 1 << 16));
            if ($piece === false || $piece === '') {
                break;
            }
            echo $piece;
            $left -= strlen($piece);
            flush();
            if (connection_aborted()) {
                exit;
            }
        }
        if ($in !== false) {
            fclose($in);
        }
        // a file that shrank since it was measured: the length promised is kept
        if ($left > 0) {
            echo str_repeat("\0", $left);
        }
        $offset += strlen($header) + $m['size'];
    }
    echo $directory . pack('VvvvvVVv', 0x06054b50, 0, 0, count($members), count($members), strlen($directory),
        $offset, 0);
    flush();
}

if (isset($_GET['zip'])) {
    if (!$tqZip || count($tqImages) === 0) {
        tq_refuse();
        exit;
    }
    $tqLock = @fopen(__FILE__, 'rb');
    if ($tqLock === false || !flock($tqLock, LOCK_EX | LOCK_NB)) {
        http_response_code(503);
        header('Retry-After: 30');
        header('Content-Type: text/plain; charset=utf-8');
        echo "Another download of all images is under way. Please try again in a minute.\n";
        exit;
    }
    $members = tq_zip_members($tqFolder, $tqImages);
    if ($members === null || count($members) === 0) {
        tq_refuse();
        exit;
    }
    while (ob_get_level() > 0) {
        ob_end_clean();
    }
    $size = 22;
    foreach ($members as $m) {
        $size += 30 + 46 + 2 * strlen($m['name']) + $m['size'];
    }
    $zipName = preg_replace('/[^A-Za-z0-9._-]/', '_', basename($tqFolder)) . '.zip';
    header('Content-Type: application/zip');
    header('Content-Disposition: attachment; filename="' . $zipName . '"');
    header('Content-Length: ' . $size);
    header('X-Content-Type-Options: nosniff');
    tq_zip_send($members);
    exit;
}

// ---------------------------------------------------------------------------
// The page: the grid of one page of thumbnails, or one image large.

$tqView = tq_param('view');
if (isset($_GET['view']) && ($tqView === null || !in_array($tqView, $tqImages, true))) {
    tq_refuse();
    exit;
}
$tqPages = max(1, (int) ceil(count($tqImages) / $tqPerPage));
$tqPage = tq_number(tq_param('page') ?? '1', 1, $tqPages, 1);

// The return link: its address and text are kept as data at the end of this
// file, never run as code, and printed as plain text.
function tq_home_link(): void
{
    $data = (string) @file_get_contents(__FILE__, false, null, __COMPILER_HALT_OFFSET__);
    $href = preg_match('/href=\\\\"(.*)\\\\">\r?$/m', $data, $m) === 1 ? $m[1] : '';
    $text = preg_match('/^<b>(.*)<\/b>\r?$/m', $data, $m) === 1 ? $m[1] : '';
    echo '<p class="home"><i><a target="_blank" href="' . tq_h($href) . '"><b>' . tq_h($text) . "</b></a></i></p>\n";
}

function tq_link(array $query): string
{
    return tq_h('?' . http_build_query($query));
}

header('Content-Type: text/html; charset=utf-8');
?>
<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title><?= tq_h($tqTitle) ?></title>
<style>
body { background: <?= $tqBackground ?>; color: <?= $tqInk ?>; font-family: arial, sans-serif; margin: 0;
  padding: 1em; text-align: center; }
a { color: inherit; }
h1 { font-size: 1.4em; font-weight: normal; margin: 0 0 0.8em; }
.grid { display: grid; grid-template-columns: repeat(<?= $tqPerLine ?>, minmax(0, 1fr)); gap: 10px;
  max-width: <?= 180 * $tqPerLine ?>px; margin: 0 auto; }
.thumb { display: block; text-decoration: none; font-size: 0.8em; overflow: hidden; }
.thumb img { display: block; width: 100%; aspect-ratio: 4 / 3; object-fit: cover; border: 1px solid <?= $tqInk ?>; }
.thumb span { display: block; padding-top: 3px; white-space: nowrap; overflow: hidden; text-overflow: ellipsis; }
nav { margin: 1em 0; }
nav a, nav span { margin: 0 0.4em; }
.current { font-weight: bold; }
.stage { position: relative; width: 100%; max-width: 960px; height: 72vh; margin: 0 auto; }
.stage img, .stage .cells { position: absolute; left: 0; top: 0; width: 100%; height: 100%; object-fit: contain; }
.stage .cells div { position: absolute; overflow: hidden; visibility: hidden; }
.stage .cells img { position: absolute; object-fit: contain; background: <?= $tqBackground ?>; }
.empty { margin: 3em 0; }
</style>
</head>
<?php if ($tqView === null) { ?>
<body data-view="grid" data-page="<?= $tqPage ?>" data-pages="<?= $tqPages ?>">
<h1><?= tq_h($tqTitle) ?></h1>
<?php if (count($tqImages) === 0) { ?>
<p class="empty">There are no images in this folder yet.</p>
<?php } else { ?>
<div class="grid" id="grid">
<?php foreach (array_slice($tqImages, ($tqPage - 1) * $tqPerPage, $tqPerPage) as $name) { ?>
<a class="thumb" href="<?= tq_link(['view' => $name]) ?>"><img src="<?= tq_link(['img' => $name]) ?>" alt="<?= tq_h($name) ?>" loading="lazy"><span><?= tq_h($name) ?></span></a>
<?php } ?>
</div>
<?php if ($tqPages > 1) { ?>
<nav class="pager" id="pager">
<?php if ($tqPage > 1) { ?><a id="prev-page" href="<?= tq_link(['page' => $tqPage - 1]) ?>">&laquo; previous</a><?php } ?>
<?php for ($p = 1; $p <= $tqPages; $p++) { ?>
<?php if ($p === $tqPage) { ?><span class="current"><?= $p ?></span><?php } else { ?><a href="<?= tq_link(['page' => $p]) ?>"><?= $p ?></a><?php } ?>
<?php } ?>
<?php if ($tqPage < $tqPages) { ?><a id="next-page" href="<?= tq_link(['page' => $tqPage + 1]) ?>">next &raquo;</a><?php } ?>
</nav>
<?php } ?>
<?php if ($tqZip) { ?>
<p class="zip"><a id="zip" href="?zip=1">Download all <?= count($tqImages) ?> images as one zip file</a></p>
<?php } ?>
<?php } ?>
<?php tq_home_link(); ?>
</body>
<?php } else {
    $at = array_search($tqView, $tqImages, true);
    $count = count($tqImages);
    $prev = $tqImages[($at + $count - 1) % $count];
    $next = $tqImages[($at + 1) % $count];
    $config = ['images' => $tqImages, 'index' => $at, 'perPage' => $tqPerPage, 'fading' => $tqFading,
        'mode' => $tqMode, 'steps' => $tqSteps, 'delay' => $tqDelay];
?>
<body data-view="large">
<h1><?= tq_h($tqTitle) ?></h1>
<div class="stage" id="stage" data-fading="0"><img id="photo" src="<?= tq_link(['img' => $tqView]) ?>" alt="<?= tq_h($tqView) ?>"></div>
<nav class="viewnav">
<a id="prev" href="<?= tq_link(['view' => $prev]) ?>">&laquo; previous</a>
<span id="counter"><?= $at + 1 ?> / <?= $count ?></span>
<a id="next" href="<?= tq_link(['view' => $next]) ?>">next &raquo;</a>
<a id="index" href="<?= tq_link(['page' => intdiv($at, $tqPerPage) + 1]) ?>">all images</a>
</nav>
<?php tq_home_link(); ?>
<script>
(function () {
  "use strict";
  var cfg = <?= json_encode($config, JSON_HEX_TAG | JSON_HEX_AMP | JSON_HEX_APOS | JSON_HEX_QUOT) ?>;
  var stage = document.getElementById("stage");
  var photo = document.getElementById("photo");
  var prev = document.getElementById("prev");
  var next = document.getElementById("next");
  var counter = document.getElementById("counter");
  var index = document.getElementById("index");
  var busy = false;

  function url(key, name) {
    return "?" + key + "=" + encodeURIComponent(name);
  }

  function show(at) {
    var n = cfg.images.length;
    cfg.index = at;
    photo.src = url("img", cfg.images[at]);
    photo.alt = cfg.images[at];
    prev.href = url("view", cfg.images[(at + n - 1) % n]);
    next.href = url("view", cfg.images[(at + 1) % n]);
    counter.textContent = (at + 1) + " / " + n;
    index.href = "?page=" + (Math.floor(at / cfg.perPage) + 1);
    history.replaceState(null, "", url("view", cfg.images[at]));
  }

  // The layer that carries the coming image; step k of n shows k/n of it.
  function makeLayer(src) {
    if (cfg.mode !== 4) {
      var img = document.createElement("img");
      img.src = src;
      img.alt = "";
      img.style.background = getComputedStyle(document.body).backgroundColor;
      var edge = function (k, n) { return (100 * (1 - k / n)).toFixed(2) + "%"; };
      var half = function (k, n) { return (50 * (1 - k / n)).toFixed(2) + "%"; };
      return {
        node: img,
        step: function (k, n) {
          if (cfg.mode === 0) img.style.opacity = String(k / n);
          if (cfg.mode === 1) img.style.clipPath = "inset(0 0 0 " + edge(k, n) + ")";
          if (cfg.mode === 2) img.style.clipPath = "inset(0 " + edge(k, n) + " 0 0)";
          if (cfg.mode === 3) img.style.clipPath = "inset(" + half(k, n) + " " + half(k, n) + ")";
        }
      };
    }
    var box = document.createElement("div");
    box.className = "cells";
    var w = stage.clientWidth, h = stage.clientHeight, cols = 8, rows = 6, cells = [];
    for (var r = 0; r < rows; r++) {
      for (var c = 0; c < cols; c++) {
        var cell = document.createElement("div");
        var x = Math.floor(c * w / cols), y = Math.floor(r * h / rows);
        cell.style.left = x + "px";
        cell.style.top = y + "px";
        cell.style.width = (Math.floor((c + 1) * w / cols) - x) + "px";
        cell.style.height = (Math.floor((r + 1) * h / rows) - y) + "px";
        var part = document.createElement("img");
        part.src = src;
        part.alt = "";
        part.style.left = -x + "px";
        part.style.top = -y + "px";
        part.style.width = w + "px";
        part.style.height = h + "px";
        cell.appendChild(part);
        box.appendChild(cell);
        cells.push(cell);
      }
    }
    for (var i = cells.length - 1; i > 0; i--) {
      var j = Math.floor(Math.random() * (i + 1));
      var t = cells[i]; cells[i] = cells[j]; cells[j] = t;
    }
    return {
      node: box,
      step: function (k, n) {
        var upto = Math.round(cells.length * k / n);
        for (var i = 0; i < upto; i++) cells[i].style.visibility = "visible";
      }
    };
  }

  function blendTo(at) {
    if (busy) return;
    busy = true;
    var src = url("img", cfg.images[at]);
    var loader = new Image();
    loader.onload = loader.onerror = function () {
      var layer = makeLayer(src);
      layer.step(0, cfg.steps);
      stage.appendChild(layer.node);
      stage.dataset.fading = "1";
      var k = 0;
      var tick = function () {
        k += 1;
        layer.step(k, cfg.steps);
        stage.dataset.fadeStep = String(k);
        if (k < cfg.steps) {
          setTimeout(tick, cfg.delay);
          return;
        }
        show(at);
        var done = function () {
          stage.removeChild(layer.node);
          stage.dataset.fading = "0";
          busy = false;
        };
        if (photo.complete) done(); else photo.onload = photo.onerror = function () { photo.onload = photo.onerror = null; done(); };
      };
      setTimeout(tick, cfg.delay);
    };
    loader.src = src;
  }

  function go(step) {
    var n = cfg.images.length;
    var at = (cfg.index + step + n) % n;
    if (cfg.fading) blendTo(at); else show(at);
  }

  prev.addEventListener("click", function (e) { e.preventDefault(); go(-1); });
  next.addEventListener("click", function (e) { e.preventDefault(); go(1); });
  document.addEventListener("keydown", function (e) {
    if (e.key === "ArrowLeft") go(-1);
    if (e.key === "ArrowRight") go(1);
  });
})();
</script>
</body>
<?php } ?>
</html>
<?php __halt_compiler();
The return link, as the program that installs this page writes it:
             <i><a target=\"_blank\"href=\"https://www.tarnquill.example\">
<b>RETURN TO HOME PAGE</b>
