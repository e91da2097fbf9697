// Exports lessons and has them read by the npm package "pbn", which others wrote: what it finds is what our own reader
// lists.  node pbn.js ZANDOLIN_DEALS LESSONS PACKAGES; exit status 77 where the package is not installed.
'use strict';
const { execFileSync } = require('child_process');
const assert = require('assert');
const fs = require('fs');
const os = require('os');
const path = require('path');

const [program, lessons, packages] = process.argv.slice(2);
let pbn;
try {
    pbn = require(path.join(packages, 'pbn'));
} catch (missing) {
    console.log('skipped: the npm package pbn is not installed; ./dev test installs it');
    process.exit(77);
}

// The sample lessons, and one whose question needs tags of our own.
function exportedFile(folder) {
    const folders = fs.readdirSync(lessons).map((name) => path.join(lessons, name));
    const own = path.join(folder, 'QVT_Spel 099');
    fs.mkdirSync(own);
    for (const file of fs.readdirSync(folders[0]))
        fs.copyFileSync(path.join(folders[0], file), path.join(own, file.replace(path.basename(folders[0]), 'QVT_Spel 099')));
    fs.writeFileSync(path.join(own, 'QVT_Spel 099 vraag.txt'), 'Zonder lege regel | met {streep}\r\n\r\n[Deal "x"]\r\n%~');
    const file = path.join(folder, 'lessons.pbn');
    execFileSync(program, ['export', ...folders, own, '--to', file]);
    return file;
}

// Its tags of each game. The whole file comes in one part: where one ends within a line, the package fails.
function gamesOf(file) {
    const games = [];
    return new Promise((done, failed) => {
        fs.createReadStream(file, { highWaterMark: 1 << 24 })
            .pipe(pbn())
            .on('data', (part) => {
                if (part.type === 'game') games.push({});
                if (part.type === 'tag') games[games.length - 1][part.name] = part;
            })
            .on('error', failed)
            .on('end', () => done(games));
    });
}

const withoutNoTrumpsT = (text) => text.replace('NT', 'N');
const calls = { Pass: 'P' };
const sorted = (list) => [...list].sort();

function comparable(game) {
    const words = game.Play.section.join('\n').replace(/\{[^}]*\}/g, ' ').split(/\s+/);
    return {
        board: game.Board.value,
        dealer: game.Dealer.value,
        declarer: game.Declarer.value,
        contract: withoutNoTrumpsT(game.Contract.value),
        cards: sorted(game.Deal.cards.map((card) => card.seat + card.suit + card.rank)),
        auction: game.Auction.tokens.map((call) => calls[call] || withoutNoTrumpsT(call)),
        play: words.filter((word) => word && word !== '*').map((card, i, all) => sorted(all.slice(i - (i % 4), i - (i % 4) + 4))[i % 4]),
    };
}

function listed(board) {
    const cards = [];
    board.hands.slice(2).split(' ').forEach((hand, seat) => hand.split('.').forEach((ranks, suit) =>
        [...ranks].forEach((rank) => cards.push('NESW'[seat] + 'SHDC'[suit] + rank))));
    const play = board.play.map((card, i, all) => sorted(all.slice(i - (i % 4), i - (i % 4) + 4))[i % 4]);
    const { dealer, declarer, contract, auction } = board;
    return { board: board.board, dealer, declarer, contract, cards: sorted(cards), auction, play };
}

(async () => {
    const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'zandolin-pbn-'));
    try {
        const file = exportedFile(folder);
        const ours = JSON.parse(execFileSync(program, ['list', file, '--json']));
        const theirs = await gamesOf(file);
        assert.ok(theirs[theirs.length - 1].ZandolinVraag, 'the last lesson has a tag of our own');
        assert.deepStrictEqual(theirs.map(comparable), ours.map(listed));
        console.log(`${theirs.length} games are read alike`);
    } finally {
        fs.rmSync(folder, { recursive: true });
    }
})().catch((failure) => {
    console.error(failure);
    process.exitCode = 1;
});
