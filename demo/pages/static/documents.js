'use strict';

let handed = '';

// Each leads the page, or a part of it, to the blob's address.
const ways = {
    link: link => link.click(),
    download: link => {
        link.download = 'rapor.pdf';
        link.click();
    },
    blank: link => {
        // Only a user's own press may open a window.
        link.target = '_blank';
        link.focus();
    },
    location: link => { location.href = link.href; },
    frame: link => {
        const frame = document.createElement('iframe');
        frame.hidden = true;
        frame.src = link.href;
        document.body.append(frame);
    },
    open: link => {
        const opened = window.open(link.href);
        if (!opened) {
            document.getElementById('handed').textContent = 'Pencere açılmadı';
        }
        report('/demo/seen', { what: 'open', result: opened ? 'window' : 'null' });
    },
    revoked: link => {
        link.click();
        URL.revokeObjectURL(link.href);
    },
    gone: link => {
        URL.revokeObjectURL(link.href);
        link.click();
    },
    quote: link => {
        link.href += '"x';
        link.click();
    },
};

// Fetches a document and hands it out as a blob.
async function handOut(way, size, type) {
    const line = document.getElementById('handed');
    const response = await fetch('/documents/ornek.pdf?size=' + size, { cache: 'no-store' });
    if (!response.ok) {
        line.textContent = 'Belge alınamadı: ' + response.status;
        return;
    }
    const blob = new Blob([await response.arrayBuffer()], { type });
    const link = document.createElement('a');
    link.href = URL.createObjectURL(blob);
    link.textContent = 'Belge hazır: ' + blob.size.toLocaleString('tr') + ' bayt';
    line.replaceChildren(link);
    report('/demo/seen', { what: 'document', way, size: blob.size });
    ways[way](link);
    return link.href;
}

// Whoever follows a link reads the blob later, so it lives until the user's next one takes its place.
async function handOutFor(button) {
    const previous = handed;
    const { way = 'link', size = 40000, type = 'application/pdf' } = button.dataset;
    handed = await handOut(way, size, type);
    if (previous) {
        URL.revokeObjectURL(previous);
    }
}

document.querySelectorAll('button.card').forEach(button => {
    button.addEventListener('click', () => handOutFor(button));
});

// For whoever has no hand to click with.
const asked = new URLSearchParams(location.search);
if (asked.has('hand')) {
    window.addEventListener('load', async () => {
        for (const way of asked.get('hand').split(',')) {
            await handOut(way, asked.get('size') ?? 40000, asked.get('type') ?? 'application/pdf');
        }
    });
}
