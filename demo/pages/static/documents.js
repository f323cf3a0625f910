'use strict';

let handed = '';

// Fetches a document and hands it out as a blob, through a click on a link.
async function handOut(button) {
    const line = document.getElementById('handed');
    const response = await fetch(button.dataset.address, { cache: 'no-store' });
    if (!response.ok) {
        line.textContent = 'Belge alınamadı: ' + response.status;
        return;
    }
    const blob = new Blob([await response.arrayBuffer()], { type: button.dataset.type });
    // Whoever follows the link reads the blob later, so it lives until the next one takes its place.
    if (handed) {
        URL.revokeObjectURL(handed);
    }
    handed = URL.createObjectURL(blob);
    const link = document.createElement('a');
    link.href = handed;
    link.textContent = 'Belge hazır: ' + blob.size.toLocaleString('tr') + ' bayt';
    line.replaceChildren(link);
    report('/demo/seen', { what: 'document', size: blob.size });
    link.click();
}

document.querySelectorAll('button[data-address]').forEach(button => {
    button.addEventListener('click', () => handOut(button));
});
